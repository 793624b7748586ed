#include "easel/text/Ascii.h"

#include <algorithm>

namespace easel::text {

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        c = lowerCase(c);
    return lower;
}

namespace {

bool isSameLetter(char a, char b) {
    return lowerCase(a) == lowerCase(b);
}

} // namespace

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSameLetter);
}

std::size_t findIgnoringCase(std::string_view text, std::string_view wanted) {
    const auto* const found =
        std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), isSameLetter);
    const bool isThere = found != text.end() || wanted.empty();
    return isThere ? static_cast<std::size_t>(found - text.begin()) : std::string_view::npos;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace easel::text
