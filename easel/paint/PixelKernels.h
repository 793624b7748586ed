// The inner loops of painting, compiled for each SIMD instruction set and chosen when the program runs. All
// of them give the same pixels.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace easel::paint {

// Pixels that LinearSteps reaches over.
constexpr int kBlock = 16;

// A color that changes evenly from pixel to pixel.
struct LinearSteps {
    // By how much the colors of a block's pixels differ from its first one's, in 256ths of a level modulo
    // 65536: blue in the low half and red in the high half of `blueRed`, green in the low half of `green`.
    alignas(64) std::array<std::uint32_t, kBlock> blueRed;
    alignas(64) std::array<std::uint32_t, kBlock> green;
    // By how much a block's first pixel differs from that of the block before it: blue, green and red in
    // levels times 2 to the 24, modulo 2 to the 32.
    std::array<std::uint32_t, 3> block;
};

// A first pixel's blue, green and red: levels times 2 to the 24, with what rounding needs added.
using LinearStart = std::array<std::uint32_t, 3>;

// Writes `count` opaque pixels. Up to `room` pixels (at least `count`) may be written over; what is in those
// beyond `count` is then undefined.
void fillLinear(std::uint32_t* pixels, int count, int room, const LinearStart& start,
                const LinearSteps& steps);

// Pixel k of a row is so far along a segment of a ramp: way = sqrt(u u + height) + lean u + reference with
// u = offset + step k, in units of which whole ones suffice. From -32768 to 32767.
struct RadialRun {
    double offset;
    double height;
    double lean;
    double reference;
    double step;
};

// The colors along the way, in 256ths of a level: at 0, with the half level that rounding needs, and by how
// much they change over 32768 units. Blue lies in the low half and red in the high half of `blueRed`, green
// in the low half of `greenAlpha`.
struct RadialColors {
    std::uint32_t blueRed;
    std::uint32_t greenAlpha;
    std::uint32_t blueRedSlope; // both halves signed
    std::uint32_t greenSlope;
};

// As fillLinear, in single precision.
void fillRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run, const RadialColors& colors);

// The same in double precision.
void fillRadialFar(std::uint32_t* pixels, int count, int room, const RadialRun& run,
                   const RadialColors& colors);

// The color of a segment: channels blue, green, red and 255 for alpha in levels, opacity from 0 to 1; all
// change with the way along the segment.
struct BlendColor {
    alignas(16) std::array<float, 4> color;
    alignas(16) std::array<float, 4> slope;
    float opacity;
    float opacitySlope;
};

// A pixel that does not hide what is below it: `share`, from 0 to 1, is multiplied by the color's opacity.
struct BlendPoint {
    int x;
    float way;
    float share;
};

// Lays the color over pixels of a row.
void blendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points);

} // namespace easel::paint
