// Code points to UTF-8 and back.
#include "easel/text/Utf8.h"

namespace easel::text {

namespace {

bool isCodePoint(char32_t value) {
    return value <= 0x10ffff && (value < 0xd800 || value > 0xdfff);
}

struct Lead {
    std::size_t length = 0; // bytes of the character; 0 for a byte that begins none
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

} // namespace

std::optional<DecodedCharacter> firstCharacter(std::string_view utf8) {
    const Lead lead = leadOf(static_cast<unsigned char>(utf8.front()));
    if (lead.length == 0 || lead.length > utf8.size())
        return std::nullopt;
    char32_t character = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if ((byte & 0xc0) != 0x80)
            return std::nullopt;
        character = character << 6 | (byte & 0x3fu);
    }
    if (character < lead.smallest || !isCodePoint(character))
        return std::nullopt;
    return DecodedCharacter{character, lead.length};
}

std::vector<char32_t> codePointsOf(std::string_view utf8) {
    std::vector<char32_t> all;
    while (!utf8.empty()) {
        const DecodedCharacter first = firstCharacter(utf8).value_or(DecodedCharacter{kReplacement, 1});
        all.push_back(first.character);
        utf8.remove_prefix(first.length);
    }
    return all;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto first = firstCharacter(text);
        if (!first)
            return false;
        text.remove_prefix(first->length);
    }
    return true;
}

void appendUtf8(std::string& text, char32_t character) {
    if (!isCodePoint(character))
        character = kReplacement;
    const auto lead = [&](unsigned mark, int shift) {
        text += static_cast<char>(static_cast<unsigned char>(mark | character >> shift));
    };
    const auto trail = [&](int shift) {
        text += static_cast<char>(static_cast<unsigned char>(0x80 | (character >> shift & 0x3f)));
    };
    if (character < 0x80) {
        lead(0, 0);
    } else if (character < 0x800) {
        lead(0xc0, 6);
        trail(0);
    } else if (character < 0x10000) {
        lead(0xe0, 12);
        trail(6);
        trail(0);
    } else {
        lead(0xf0, 18);
        trail(12);
        trail(6);
        trail(0);
    }
}

std::string utf8Of(char32_t character) {
    std::string text;
    appendUtf8(text, character);
    return text;
}

} // namespace easel::text
