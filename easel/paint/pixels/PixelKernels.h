// The inner loops of painting, compiled for each SIMD instruction set and chosen when the program runs. All
// of them give the same pixels.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace easel::paint {

// Pixel k of a row is so far along a color span of a ramp: distance = sqrt(u u + height) + lean u + reference
// with u = offset + step k, in units of which whole ones suffice. From -32768 to 32767.
struct RadialRun {
    double offset;
    double height;
    double lean;
    double reference;
    double step;
};

// The colors along the distance, in 256ths of a level: at 0, with the half level that rounding needs, and by
// how much they change over 32768 units. Blue lies in the low half and red in the high half of `blueRed`,
// green in the low half of `greenAlpha`.
struct RadialColors {
    std::uint32_t blueRed;
    std::uint32_t greenAlpha;
    std::uint32_t blueRedSlope; // both halves signed
    std::uint32_t greenSlope;
};

// Writes `count` opaque pixels, in single precision. Up to `room` pixels (at least `count`) may be written
// over; what is in those beyond `count` is then undefined.
void fillRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run, const RadialColors& colors);

// The same in double precision.
void fillRadialFar(std::uint32_t* pixels, int count, int room, const RadialRun& run,
                   const RadialColors& colors);

// The color of a color span: channels blue, green, red and 255 for alpha in levels, opacity from 0 to 1; all
// change with the distance along the color span.
struct BlendColor {
    alignas(16) std::array<float, 4> color;
    alignas(16) std::array<float, 4> slope;
    float opacity;
    float opacitySlope;
};

// A pixel that does not hide what is below it: `share`, from 0 to 1, is multiplied by the color's opacity.
struct BlendPoint {
    int x;
    float distance;
    float share;
};

// Lays the color over pixels of a row.
void blendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points);

} // namespace easel::paint
