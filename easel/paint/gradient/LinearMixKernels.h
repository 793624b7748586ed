// The inner loop of linear gradients that what is below shows through, compiled for each SIMD instruction set
// and chosen when the program runs. All of them give the same pixels.
#pragma once

#include "easel/paint/gradient/LinearKernels.h"

namespace easel::paint {

// Blue, green and red as LinearLevels has them, and the weight of the color from 0 to 1 in units of 2 to the
// -32, modulo 2 to the 32. Weights come near 0 and 1 without reaching them.
using LinearMixLevels = std::array<std::uint32_t, 4>;

// A color and a weight that change evenly from pixel to pixel.
struct LinearMixSteps {
    // By how much the weights of a block's pixels differ from its first one's.
    alignas(64) std::array<std::uint32_t, kBlock> weight;
    const LinearSteps* color;
    bool opaque; // whatever the weights are
    // By how much a pixel differs from its left neighbor.
    alignas(16) LinearMixLevels pixel;
};

// Pixels of a row whose color and weight change evenly.
struct LinearMixStretch {
    int end;                     // the first pixel of the next stretch
    const LinearMixSteps* steps; // null: not painted
    // Of the row's pixel 0, with what rounding needs added.
    alignas(16) LinearMixLevels origin;
};

// Lays the colors over what fully covered spans of a row have within the stretches, which follow one another
// as they do for fillLinear. The pixels `toNextRow` beyond those painted are fetched from memory meanwhile.
void mixLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearMixStretch* stretches,
               std::ptrdiff_t toNextRow);

} // namespace easel::paint
