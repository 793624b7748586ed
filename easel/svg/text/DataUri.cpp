// Data URIs as RFC 2397 has them, read as forgivingly as browsers do: blanks in base64 count for nothing, and
// its padding may be missing.
#include "easel/svg/text/DataUri.h"

#include "easel/text/Ascii.h"
#include "easel/text/Hexadecimal.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace easel::svg {

using text::equalIgnoringCase;
using text::hexadecimalDigit;
using text::isSpace;
using text::trimmed;

namespace {

constexpr std::string_view kScheme = "data:";
constexpr std::string_view kBase64 = "base64";
constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t kNoDigit = 64;

constexpr std::array<std::uint8_t, 256> kDigitValues = [] {
    std::array<std::uint8_t, 256> values{};
    values.fill(kNoDigit);
    for (std::size_t i = 0; i < kDigits.size(); ++i)
        values[static_cast<unsigned char>(kDigits[i])] = static_cast<std::uint8_t>(i);
    return values;
}();

std::optional<std::string> fromBase64(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3 + 3);
    std::uint32_t bits = 0;
    std::size_t digits = 0;
    std::size_t padding = 0;
    for (const char c : text) {
        if (isSpace(c))
            continue;
        const std::uint8_t value = kDigitValues[static_cast<unsigned char>(c)];
        if (c == '=' && padding < 2) {
            ++padding;
            continue;
        }
        if (value == kNoDigit || padding > 0)
            return std::nullopt;
        bits = bits << 6 | value;
        if (++digits % 4 == 0)
            for (const int shift : {16, 8, 0})
                bytes += static_cast<char>(bits >> shift & 0xFF);
    }
    const std::size_t left = digits % 4;
    if (left == 1 || (padding > 0 && (digits + padding) % 4 != 0))
        return std::nullopt;
    if (left > 1)
        bytes += static_cast<char>(bits >> (6 * left - 8) & 0xFF);
    if (left > 2)
        bytes += static_cast<char>(bits >> 2 & 0xFF);
    return bytes;
}

} // namespace

std::string withoutPercents(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escapes = text[i] == '%' && i + 2 < text.size();
        const auto high = escapes ? hexadecimalDigit(text[i + 1]) : std::nullopt;
        const auto low = escapes ? hexadecimalDigit(text[i + 2]) : std::nullopt;
        result += high && low ? static_cast<char>(*high << 4 | *low) : text[i];
        i += high && low ? 2 : 0;
    }
    return result;
}

bool isDataUri(std::string_view text) {
    return equalIgnoringCase(trimmed(text).substr(0, kScheme.size()), kScheme);
}

std::optional<DataUri> parseDataUri(std::string_view text) {
    if (!isDataUri(text))
        return std::nullopt;
    text = trimmed(text).substr(kScheme.size());
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos)
        return std::nullopt;
    const std::string_view head = trimmed(text.substr(0, comma));
    const std::string_view data = text.substr(comma + 1);
    DataUri result{trimmed(head.substr(0, head.find(';'))), {}};
    const std::size_t last = head.rfind(';');
    const bool packed =
        last != std::string_view::npos && equalIgnoringCase(trimmed(head.substr(last + 1)), kBase64);
    if (!packed) {
        result.bytes = withoutPercents(data);
        return result;
    }
    const bool escaped = data.find('%') != std::string_view::npos;
    auto bytes = fromBase64(escaped ? withoutPercents(data) : data);
    if (!bytes)
        return std::nullopt;
    result.bytes = *std::move(bytes);
    return result;
}

std::string base64Text(std::string_view bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view three = bytes.substr(at, 3);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 3; ++i)
            bits = bits << 8 | (i < three.size() ? static_cast<unsigned char>(three[i]) : 0u);
        for (std::size_t i = 0; i < 4; ++i)
            text += i <= three.size() ? kDigits[bits >> (18 - 6 * i) & 63] : '=';
    }
    return text;
}

} // namespace easel::svg
