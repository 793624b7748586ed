// The inner loops with opacity in plain C++, for machines without a known SIMD instruction set: the same
// pixels, one at a time.
#pragma once

#include "easel/paint/pixels/MixKernels.h"
#include "easel/paint/pixels/PlainKernels.h"
#include "easel/paint/pixels/PlainMixed.h"

#include <algorithm>
#include <bit>

namespace easel::paint::plain {

// Added to a number, leaves the nearest whole one in the lowest bits.
constexpr float kToBits = 3.0F * (1 << 22);
// Neither all of the pixel nor nothing of it, since what is left of 65536 parts has to fit in 16 bits as
// well. Neither makes a difference: products with the one part cut it off.
constexpr float kLeastShare = 1;
constexpr float kMostShare = 65535;

inline std::uint32_t bitsOf(float value) {
    return std::bit_cast<std::uint32_t>(value + kToBits) & 0xFFFF;
}

inline std::uint32_t mixedAt(float distance, const MixColors& mix, std::uint32_t below) {
    const int whole = static_cast<std::int16_t>(bitsOf(distance));
    const float exact = mix.share + mix.shareSlope * distance;
    const std::uint32_t share = bitsOf(std::min(std::max(exact, kLeastShare), kMostShare));
    const RadialColors& colors = mix.colors;
    const auto part = [&](std::uint32_t base, std::uint32_t slope) {
        return halfAlong(base, slope, whole) * share >> 16;
    };
    const Parts parts{part(colors.blueRed, colors.blueRedSlope), part(colors.greenAlpha, colors.greenSlope),
                      part(colors.blueRed >> 16, colors.blueRedSlope >> 16),
                      part(colors.greenAlpha >> 16, 0)};
    return laidOver(parts, below, 65536 - share);
}

template <class Real> void mixRadial(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    for (int i = 0; i < range.count; ++i) {
        const Real u = static_cast<Real>(run.offset) + static_cast<Real>(run.step) * static_cast<Real>(i);
        const Real root = std::sqrt(u * u + static_cast<Real>(run.height));
        const Real distance = root + static_cast<Real>(run.lean) * u + static_cast<Real>(run.reference);
        range.first[i] = mixedAt(static_cast<float>(distance), colors, range.first[i]);
    }
}

inline void mixFlat(const MixRange& range, const FlatMix& color) {
    const Parts parts{color.blueRed & 0xFFFF, color.greenAlpha & 0xFFFF, color.blueRed >> 16,
                      color.greenAlpha >> 16};
    for (int i = 0; i < range.count; ++i)
        range.first[i] = laidOver(parts, range.first[i], color.rest);
}

} // namespace easel::paint::plain
