// The inner loops of painting with opacity, compiled for each SIMD instruction set and chosen when the
// program runs. All of them give the same pixels.
#pragma once

#include "easel/paint/pixels/PixelKernels.h"

#include <cstddef>
#include <cstdint>

namespace easel::paint {

// The pixels of a row that a piece is laid over: `count` of them. Those up to `room` pixels from the first
// (at least `count`) may be read and written as they are. The pixels `toNextRow` beyond each are fetched from
// memory meanwhile.
struct MixRange {
    std::uint32_t* first;
    int count;
    int room;
    std::ptrdiff_t toNextRow;
};

// The colors along the distance, as for opaque pixels but with a unit more that makes up for what products
// cut off, and the share of the pixel that they take: at 0 and its change over a unit, in 65536ths.
struct MixColors {
    RadialColors colors;
    float share;
    float shareSlope;
};

// What one color adds to each pixel, in 256ths of a level and with its part of the half level that rounding
// needs: blue in the low and red in the high half of one number, green and alpha of the other. `rest` of
// 65536 parts of the pixel stay.
struct FlatMix {
    std::uint32_t blueRed;
    std::uint32_t greenAlpha;
    std::uint16_t rest;
};

// Lays a radial run over what is there, its distances in single precision.
void mixRadial(const MixRange& range, const RadialRun& run, const MixColors& colors);
// The same in double precision.
void mixRadialFar(const MixRange& range, const RadialRun& run, const MixColors& colors);
// One color everywhere.
void mixFlat(const MixRange& range, const FlatMix& color);

} // namespace easel::paint
