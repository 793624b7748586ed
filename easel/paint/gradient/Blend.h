// Composing one exact color over one pixel, rounded once.
#pragma once

#include "easel/drawing/Ramp.h"

#include <cmath>
#include <cstdint>

namespace easel::paint {

// The pixel after a color was laid over it; `weight` is the share of the pixel the color takes, opacity times
// coverage.
inline std::uint32_t blended(std::uint32_t pixel, const drawing::RampColor& color, double weight) {
    const auto channel = [&](int shift, double level) {
        const double below = (pixel >> shift) & 0xFF;
        return static_cast<std::uint32_t>(std::lrint(below + (level - below) * weight)) << shift;
    };
    return channel(24, 255) | channel(16, color.red) | channel(8, color.green) | channel(0, color.blue);
}

} // namespace easel::paint
