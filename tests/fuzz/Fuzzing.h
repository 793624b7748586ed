// What fuzz targets share.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

namespace fuzzing {

// What has to hold whatever the input is.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}

// As the text of an element or an attribute in quotes, without the characters that no XML holds.
inline std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '<')
            result += "&lt;";
        else if (c == '&')
            result += "&amp;";
        else if (c == '"')
            result += "&quot;";
        else if (static_cast<unsigned char>(c) >= ' ' || c == '\t' || c == '\n')
            result += c;
    }
    return result;
}

} // namespace fuzzing
