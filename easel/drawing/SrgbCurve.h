// The transfer function of sRGB, IEC 61966-2-1: between its channels and what is in proportion to light, both
// 0 to 1. Negative values, which colors of other spaces may have, mirror the positive ones.
#pragma once

#include <cmath>

namespace easel::drawing {

inline double linearLightOf(double srgb) {
    const double value = std::abs(srgb);
    return std::copysign(value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4), srgb);
}

inline double srgbOf(double linear) {
    const double value = std::abs(linear);
    return std::copysign(value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1 / 2.4) - 0.055,
                         linear);
}

} // namespace easel::drawing
