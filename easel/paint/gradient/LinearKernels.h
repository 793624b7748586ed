// The inner loops of linear gradients, compiled for each SIMD instruction set and chosen when the program
// runs. All of them give the same pixels.
#pragma once

#include "easel/paint/coverage/Coverage.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace easel::paint {

// Pixels that LinearSteps reaches over.
constexpr int kBlock = 16;
static_assert(kBlock % kCoverageBlock == 0);

// Blue, green and red in levels times 2 to the 24, modulo 2 to the 32.
using LinearLevels = std::array<std::uint32_t, 3>;

// A color that changes evenly from pixel to pixel.
struct LinearSteps {
    // By how much the colors of a block's pixels differ from its first one's, in 256ths of a level modulo
    // 65536: blue in the low half and red in the high half of `blueRed`, green in the low half of `green`.
    using Block = std::array<std::uint32_t, kBlock>;
    alignas(sizeof(Block)) Block blueRed;
    alignas(sizeof(Block)) Block green;
    // By how much a pixel differs from its left neighbor.
    LinearLevels pixel;
};

// Pixels of a row whose color changes evenly. Colors are those of the pixel, which may also lie beyond: they
// go on.
struct LinearStretch {
    int end; // the first pixel of the next stretch
    // Of the row's pixel 0, with what rounding needs added.
    LinearLevels origin;
    const LinearSteps* steps; // null: not painted
};

// Both paint what spans of a row have within the stretches, opaque. The stretches follow one another without
// gaps, the first of them holds the first pixel, and the last one's end is that of the last span.
//
// Fully covered spans. Every stretch is painted, since a stretch may be written over by the one before.
void fillLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretches);
// Spans within blocks, each pixel covered as `coverage` tells at its index.
void blendLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretches,
                 const std::uint32_t* coverage);

} // namespace easel::paint
