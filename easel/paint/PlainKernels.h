// The inner loops in plain C++, for machines without a known SIMD instruction set: the same pixels, one at a
// time.
#pragma once

#include "easel/paint/PixelKernels.h"

#include <bit>
#include <cmath>
#include <cstddef>

namespace easel::paint::plain {

// The nearest whole number, ties to even, for levels; the addition rounds as every SIMD unit does.
inline std::uint32_t nearestLevel(float level) {
    constexpr float kShift = 8388608.0F; // 2 to the 23
    return std::bit_cast<std::uint32_t>(level + kShift) & 0xFF;
}

inline void fillLinear(std::uint32_t* pixels, int count, int, const LinearStart& start,
                       const LinearSteps& steps) {
    LinearStart color = start;
    for (int block = 0; block < count; block += kBlock) {
        for (int i = 0; i < kBlock && block + i < count; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const std::uint32_t blue = (color[0] >> 16) + steps.blueRed[at];
            const std::uint32_t green = (color[1] >> 16) + steps.green[at];
            const std::uint32_t red = (color[2] >> 16) + (steps.blueRed[at] >> 16);
            pixels[block + i] = 0xFF000000 | (red << 8 & 0xFF0000) | (green & 0xFF00) | (blue >> 8 & 0xFF);
        }
        for (std::size_t i = 0; i < color.size(); ++i)
            color[i] += steps.block[i];
    }
}

inline void fillRadial(std::uint32_t* pixels, int count, int, const RadialRun& run) {
    for (int i = 0; i < count; ++i) {
        const float u = run.offset + static_cast<float>(i);
        const float way = std::sqrt(u * u + run.height) + run.lean * u - run.reference;
        const auto channel = [&](std::size_t c) { return nearestLevel(run.color[c] + run.slope[c] * way); };
        pixels[i] = 0xFF000000 | channel(2) << 16 | channel(1) << 8 | channel(0);
    }
}

inline void blendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    for (const BlendPoint& point : points) {
        const float weight = (color.opacity + color.opacitySlope * point.way) * point.share;
        std::uint32_t pixel = 0;
        for (std::size_t c = 0; c < 4; ++c) {
            const auto shift = 8 * static_cast<unsigned>(c);
            const auto below = static_cast<float>(row[point.x] >> shift & 0xFF);
            const float level = color.color[c] + color.slope[c] * point.way;
            pixel |= nearestLevel(below + (level - below) * weight) << shift;
        }
        row[point.x] = pixel;
    }
}

} // namespace easel::paint::plain
