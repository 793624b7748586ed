// Code points to UTF-8 and back.
#include "easel/files/Utf8.h"

#include <optional>

namespace easel::files {

namespace {

constexpr char32_t kReplacement = 0xfffd;

bool isCodePoint(char32_t value) {
    return value <= 0x10ffff && (value < 0xd800 || value > 0xdfff);
}

char trailing(char32_t character, int shift) {
    return static_cast<char>(0x80 | (character >> shift & 0x3f));
}

struct Lead {
    int length = 0; // bytes of the character; 0 for a byte that begins none
    char32_t bits = 0;
    char32_t smallest = 0; // what needs as many bytes
};

Lead leadOf(unsigned char byte) {
    if (byte < 0x80)
        return {1, byte, 0};
    if (byte >= 0xc2 && byte <= 0xdf)
        return {2, byte & 0x1fu, 0x80};
    if (byte >= 0xe0 && byte <= 0xef)
        return {3, byte & 0x0fu, 0x800};
    if (byte >= 0xf0 && byte <= 0xf4)
        return {4, byte & 0x07u, 0x10000};
    return {};
}

struct Character {
    char32_t value;
    std::size_t length; // bytes
};

// The character that begins at `at`, or nothing if none does.
std::optional<Character> decode(std::string_view text, std::size_t at) {
    const Lead lead = leadOf(static_cast<unsigned char>(text[at]));
    const auto length = static_cast<std::size_t>(lead.length);
    if (length == 0 || at + length > text.size())
        return std::nullopt;
    char32_t character = lead.bits;
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[at + i]);
        if ((byte & 0xc0) != 0x80)
            return std::nullopt;
        character = character << 6 | (byte & 0x3fu);
    }
    if (character < lead.smallest || !isCodePoint(character))
        return std::nullopt;
    return Character{character, length};
}

} // namespace

std::string utf8Of(char32_t character) {
    if (!isCodePoint(character))
        character = kReplacement;
    if (character < 0x80)
        return {static_cast<char>(character)};
    if (character < 0x800)
        return {static_cast<char>(0xc0 | character >> 6), trailing(character, 0)};
    if (character < 0x10000)
        return {static_cast<char>(0xe0 | character >> 12), trailing(character, 6), trailing(character, 0)};
    return {static_cast<char>(0xf0 | character >> 18), trailing(character, 12), trailing(character, 6),
            trailing(character, 0)};
}

std::vector<char32_t> codePointsOf(std::string_view utf8) {
    std::vector<char32_t> all;
    for (std::size_t at = 0; at < utf8.size();) {
        const Character character = decode(utf8, at).value_or(Character{kReplacement, 1});
        all.push_back(character.value);
        at += character.length;
    }
    return all;
}

} // namespace easel::files
