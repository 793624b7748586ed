// The inner loops of painting with opacity, compiled for each SIMD instruction set and chosen when the
// program runs. All of them give the same pixels.
#pragma once

#include "easel/paint/pixels/PixelKernels.h"

namespace easel::paint {

// The colors along the distance and their weight from 0 to 1: at 0, and by how much they change over a unit.
// Blue, green and red are in 256ths of a level and have added what rounding needs, see mixLevelOf.
struct MixColors {
    std::array<float, 3> color;
    std::array<float, 3> slope;
    float weight;
    float weightSlope;
};

// A level with the half level that rounding needs.
constexpr double mixLevelOf(double level) {
    return level * 256 + 128;
}

// Lays `count` pixels of a run over what is there, in single precision. Up to `room` pixels (at least
// `count`) may be read and written anew.
void mixRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run, const MixColors& colors);
// The same in double precision.
void mixRadialFar(std::uint32_t* pixels, int count, int room, const RadialRun& run, const MixColors& colors);
// The color at distance 0 everywhere.
void mixFlat(std::uint32_t* pixels, int count, int room, const MixColors& colors);

} // namespace easel::paint
