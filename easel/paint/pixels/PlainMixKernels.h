// The inner loops with opacity in plain C++, for machines without a known SIMD instruction set: the same
// pixels, one at a time.
#pragma once

#include "easel/paint/pixels/MixKernels.h"
#include "easel/paint/pixels/PlainMixed.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace easel::paint::plain {

// Added to a number, leaves the nearest whole one in the lowest bits.
constexpr float kToBits = 3.0F * (1 << 22);
// 255 as mixLevelOf gives it, and more, so that no rounding lets a color exceed its alpha.
constexpr float kAlphaLevel = 65409.0F;
// What is left of 65536 parts for the pixel below; a little less, so that all of them fit in 16 bits.
constexpr float kAllParts = 65535.484375F;
constexpr float kTakenParts = 65535.96875F;

inline std::uint32_t bitsOf(float value) {
    return std::bit_cast<std::uint32_t>(value + kToBits) & 0xFFFF;
}

inline std::uint32_t mixedAt(float distance, const MixColors& colors, std::uint32_t below) {
    const float weight = std::min(std::max(colors.weight + colors.weightSlope * distance, 0.0F), 1.0F);
    const auto part = [&](std::size_t i) {
        return bitsOf((colors.color[i] + colors.slope[i] * distance) * weight);
    };
    const Parts parts{part(0), part(1), part(2), bitsOf(kAlphaLevel * weight)};
    return laidOver(parts, below, bitsOf(kAllParts - kTakenParts * weight));
}

template <class Real>
void mixRadial(std::uint32_t* pixels, int count, const RadialRun& run, const MixColors& colors) {
    for (int i = 0; i < count; ++i) {
        const Real u = static_cast<Real>(run.offset) + static_cast<Real>(run.step) * static_cast<Real>(i);
        const Real root = std::sqrt(u * u + static_cast<Real>(run.height));
        const Real distance = root + static_cast<Real>(run.lean) * u + static_cast<Real>(run.reference);
        pixels[i] = mixedAt(static_cast<float>(distance), colors, pixels[i]);
    }
}

inline void mixFlat(std::uint32_t* pixels, int count, const MixColors& colors) {
    for (int i = 0; i < count; ++i)
        pixels[i] = mixedAt(0, colors, pixels[i]);
}

} // namespace easel::paint::plain
