// The inner loops in plain C++, for machines without a known SIMD instruction set: the same pixels, one at a
// time.
#pragma once

#include "easel/paint/pixels/PixelKernels.h"

#include <bit>
#include <cmath>
#include <cstddef>

namespace easel::paint::plain {

// The nearest whole number, ties to even, for levels; the addition rounds as every SIMD unit does.
inline std::uint32_t nearestLevel(float level) {
    constexpr float kShift = 1 << 23;
    return std::bit_cast<std::uint32_t>(level + kShift) & 0xFF;
}

// A half of `base` plus the same half of `slope` times distance / 32768, rounded.
inline std::uint32_t halfAlong(std::uint32_t base, std::uint32_t slope, int distance) {
    const int change = (static_cast<std::int16_t>(slope & 0xFFFF) * distance + (1 << 14)) >> 15;
    return (base + static_cast<std::uint32_t>(change)) & 0xFFFF;
}

template <class Real>
void fillRadial(std::uint32_t* pixels, int count, int, const RadialRun& run, const RadialColors& colors) {
    for (int i = 0; i < count; ++i) {
        const Real u = static_cast<Real>(run.offset) + static_cast<Real>(run.step) * static_cast<Real>(i);
        const Real root = std::sqrt(u * u + static_cast<Real>(run.height));
        const Real exact = root + static_cast<Real>(run.lean) * u + static_cast<Real>(run.reference);
        const int distance = static_cast<int>(std::nearbyint(exact));
        const std::uint32_t blue = halfAlong(colors.blueRed, colors.blueRedSlope, distance);
        const std::uint32_t green = halfAlong(colors.greenAlpha, colors.greenSlope, distance);
        const std::uint32_t red = halfAlong(colors.blueRed >> 16, colors.blueRedSlope >> 16, distance);
        pixels[i] = 0xFF000000 | (red << 8 & 0xFF0000) | (green & 0xFF00) | blue >> 8;
    }
}

inline void blendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    for (const BlendPoint& point : points) {
        const float weight = (color.opacity + color.opacitySlope * point.distance) * point.share;
        std::uint32_t pixel = 0;
        for (std::size_t c = 0; c < 4; ++c) {
            const auto shift = 8 * static_cast<unsigned>(c);
            const auto below = static_cast<float>(row[point.x] >> shift & 0xFF);
            const float level = color.color[c] + color.slope[c] * point.distance;
            pixel |= nearestLevel(below + (level - below) * weight) << shift;
        }
        row[point.x] = pixel;
    }
}

} // namespace easel::paint::plain
