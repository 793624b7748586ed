// Digits of numbers with the base 16.
#pragma once

#include "easel/text/Ascii.h"

#include <optional>

namespace easel::text {

// From 0 to 15, whatever the case; nothing if the letter is no such digit.
inline std::optional<unsigned> hexadecimalDigit(char c) {
    const char lower = lowerCase(c);
    if (isDigit(c))
        return static_cast<unsigned>(c - '0');
    if (lower >= 'a' && lower <= 'f')
        return static_cast<unsigned>(lower - 'a') + 10;
    return std::nullopt;
}

} // namespace easel::text
