// A color as drawings hold it, and what an opacity may be.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace easel::drawing {

// 0 to 65535 per channel.
struct Rgb16 {
    std::uint16_t red = 0;
    std::uint16_t green = 0;
    std::uint16_t blue = 0;

    friend bool operator==(const Rgb16&, const Rgb16&) = default;
};

// 0 to 1; what is not a number counts as no opacity given, which is 1.
inline double validOpacity(double opacity) {
    return std::isnan(opacity) ? 1 : std::clamp(opacity, 0.0, 1.0);
}

} // namespace easel::drawing
