#include "easel/text/Ascii.h"

#include <algorithm>

namespace easel::text {

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        c = lowerCase(c);
    return lower;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerCase(x) == lowerCase(y); });
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace easel::text
