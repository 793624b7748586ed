// Single characters of UTF-8 text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace easel::text {

constexpr char32_t kReplacement = 0xfffd;

struct DecodedCharacter {
    char32_t character;
    std::size_t length; // in bytes, 1 to 4
};

// The character that a text, which must not be empty, begins with; nothing where it is overlong, cut short, a
// surrogate or out of range.
std::optional<DecodedCharacter> firstCharacter(std::string_view utf8);

// The code points of a text, in order; every byte that belongs to no well-formed character becomes U+FFFD.
std::vector<char32_t> codePointsOf(std::string_view utf8);

bool isUtf8(std::string_view text);

// Adds a code point to a text. What is none (a surrogate, or beyond the last) becomes U+FFFD.
void appendUtf8(std::string& text, char32_t character);
std::string utf8Of(char32_t character);

} // namespace easel::text
