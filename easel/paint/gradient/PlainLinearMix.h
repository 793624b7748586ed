// The inner loop of linear gradients with opacity in plain C++, for machines without a known SIMD instruction
// set: the same pixels, one at a time.
#pragma once

#include "easel/paint/gradient/LinearMixKernels.h"
#include "easel/paint/gradient/PlainLinear.h"
#include "easel/paint/pixels/PlainMixed.h"

namespace easel::paint::plain {

// The alpha of new colors: 255 and a half, the unit, and one more, so that no rounding lets a color exceed
// it.
constexpr std::uint32_t kAlpha = 0xFF820000;

inline void mixLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearMixStretch* stretch) {
    for (const PixelSpan& span : spans) {
        for (int x = span.begin; x < span.end; ++x) {
            while (stretch->end <= x)
                ++stretch;
            if (!stretch->steps)
                continue;
            const LinearMixSteps& steps = *stretch->steps;
            const LinearMixLevels& origin = stretch->origin;
            const int step = (x - span.begin) % kBlock;
            const LinearStretch color{stretch->end, {origin[0], origin[1], origin[2]}, steps.color};
            const Levels16 levels = levelsAt(color, x - step, step);
            if (steps.opaque) {
                row[x] = 0xFF000000 | (levels.red >> 8) << 16 | (levels.green >> 8) << 8 | levels.blue >> 8;
                continue;
            }
            const std::uint32_t share = (origin[3] + steps.pixel[3] * static_cast<std::uint32_t>(x)) >> 16;
            const auto part = [share](std::uint32_t level) { return level * share >> 16; };
            const Parts parts{part(levels.blue), part(levels.green), part(levels.red), part(kAlpha >> 16)};
            row[x] = laidOver(parts, row[x], 0xFFFF - share);
        }
    }
}

} // namespace easel::paint::plain
