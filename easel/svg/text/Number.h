// Numbers as text that reads back as the same number.
#pragma once

#include <charconv>
#include <string>

namespace easel::svg {

// The shortest such text. Infinite numbers and NaN, which SVG has no text for, give "inf", "-inf" and "nan".
template <class Float> std::string numberText(Float value) {
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, end.ptr};
}

} // namespace easel::svg
