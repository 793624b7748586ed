#include "easel/svg/text/Encoding.h"

#include "easel/svg/text/Scanner.h"
#include "easel/text/Utf8.h"

namespace easel::svg {

namespace {

// The character at `at`, which is moved past it.
char32_t takeCharacter(std::string_view text, std::size_t& at) {
    const auto first =
        text::firstCharacter(text.substr(at)).value_or(text::DecodedCharacter{text::kReplacement, 1});
    at += first.length;
    return first.character;
}

char32_t unitAt(std::string_view bytes, std::size_t at, Encoding encoding) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    return encoding == Encoding::Utf16Big ? static_cast<char32_t>(first << 8 | second)
                                          : static_cast<char32_t>(second << 8 | first);
}

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

std::string decodeUtf16(std::string_view bytes, Encoding encoding) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const char32_t unit = unitAt(bytes, at, encoding);
        const char32_t next = at + 3 < bytes.size() ? unitAt(bytes, at + 2, encoding) : 0;
        if (isHighSurrogate(unit) && isLowSurrogate(next)) {
            text::appendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
            at += 2;
        } else {
            text::appendUtf8(text, isHighSurrogate(unit) || isLowSurrogate(unit) ? text::kReplacement : unit);
        }
    }
    return text;
}

void appendUnit(std::string& bytes, char32_t unit, Encoding encoding) {
    const auto high = static_cast<char>(static_cast<unsigned char>(unit >> 8));
    const auto low = static_cast<char>(static_cast<unsigned char>(unit));
    bytes += encoding == Encoding::Utf16Big ? high : low;
    bytes += encoding == Encoding::Utf16Big ? low : high;
}

std::string encodeUtf16(std::string_view text, Encoding encoding) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t c = takeCharacter(text, at);
        if (c < 0x10000) {
            appendUnit(bytes, c, encoding);
        } else {
            appendUnit(bytes, 0xD800 + ((c - 0x10000) >> 10), encoding);
            appendUnit(bytes, 0xDC00 + ((c - 0x10000) & 0x3FF), encoding);
        }
    }
    return bytes;
}

std::size_t sizeIn(Encoding encoding, char32_t c) {
    if (encoding == Encoding::Bytes)
        return 1;
    return c < 0x10000 ? 2 : 4;
}

// The encoding named in the XML declaration; empty if none is.
std::string_view declaredEncoding(std::string_view bytes) {
    if (bytes.substr(0, 5) != "<?xml")
        return {};
    const std::string_view declaration = bytes.substr(0, bytes.find("?>"));
    const std::size_t name = declaration.find("encoding");
    if (name == std::string_view::npos)
        return {};
    Scanner scanner(declaration.substr(name + 8));
    scanner.skipSpaces();
    if (!scanner.take('='))
        return {};
    scanner.skipSpaces();
    const char quote = scanner.peek();
    return (scanner.take('"') || scanner.take('\'')) ? trimmed(scanner.until(quote)) : std::string_view();
}

} // namespace

Encoding detectEncoding(std::string_view bytes) {
    const auto begins = [bytes](std::string_view mark) { return bytes.substr(0, mark.size()) == mark; };
    if (begins("\xEF\xBB\xBF"))
        return Encoding::Utf8;
    if (begins("\xFF\xFE") || begins(std::string_view("<\0", 2)))
        return Encoding::Utf16Little;
    if (begins("\xFE\xFF") || begins(std::string_view("\0<", 2)))
        return Encoding::Utf16Big;
    const std::string_view declared = declaredEncoding(bytes);
    return declared.empty() || equalIgnoringCase(declared, "utf-8") || equalIgnoringCase(declared, "utf8")
               ? Encoding::Utf8
               : Encoding::Bytes;
}

std::string decode(std::string_view bytes, Encoding encoding) {
    if (encoding == Encoding::Utf8)
        return std::string(bytes);
    if (encoding != Encoding::Bytes)
        return decodeUtf16(bytes, encoding);
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes)
        text::appendUtf8(text, static_cast<unsigned char>(c));
    return text;
}

std::string encode(std::string_view text, Encoding encoding) {
    if (encoding == Encoding::Utf8)
        return std::string(text);
    if (encoding != Encoding::Bytes)
        return encodeUtf16(text, encoding);
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t c = takeCharacter(text, at);
        if (c < 0x100)
            bytes += static_cast<char>(static_cast<unsigned char>(c));
        else
            bytes += "&#" + std::to_string(static_cast<std::uint32_t>(c)) + ';';
    }
    return bytes;
}

std::vector<std::size_t> byteOffsets(std::string_view text, Encoding encoding,
                                     const std::vector<std::size_t>& textOffsets) {
    if (encoding == Encoding::Utf8)
        return textOffsets;
    std::vector<std::size_t> result;
    result.reserve(textOffsets.size());
    std::size_t at = 0;
    std::size_t byte = 0;
    for (const std::size_t wanted : textOffsets) {
        while (at < wanted)
            byte += sizeIn(encoding, takeCharacter(text, at));
        result.push_back(byte);
    }
    return result;
}

} // namespace easel::svg
