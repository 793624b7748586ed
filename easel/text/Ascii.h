// Blanks, digits, and letters A to Z in either case: the keywords of the formats that Easel reads have no
// others, and no locale has a say in them.
#pragma once

#include <string>
#include <string_view>

namespace easel::text {

// The blanks of XML and CSS.
inline bool isSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}
inline bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
inline char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
inline bool isLetter(char c) {
    return lowerCase(c) >= 'a' && lowerCase(c) <= 'z';
}

std::string lowerCase(std::string_view text);
bool equalIgnoringCase(std::string_view a, std::string_view b);
// Where `wanted` first stands in the text, whatever its case; npos if nowhere.
std::size_t findIgnoringCase(std::string_view text, std::string_view wanted);
// Without the blanks at either end.
std::string_view trimmed(std::string_view text);

} // namespace easel::text
