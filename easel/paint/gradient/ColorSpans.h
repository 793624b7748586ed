// A ramp as the chain of straight pieces that painting walks along, spread out over the parameters that
// occur.
#pragma once

#include "easel/drawing/Paint.h"
#include "easel/drawing/Ramp.h"
#include "easel/paint/pixels/PixelKernels.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace easel::paint {

// Blue, green, red (0 to 255) and opacity (0 to 1), or their change per unit.
using Channels = std::array<double, 4>;

// The colors from `start` up to the next color span's start.
struct ColorSpan {
    double start;  // minus infinity for the first
    double anchor; // where the color is `color`; finite
    double reach;  // the color changes up to this far beyond the anchor
    Channels color;
    Channels slope; // per unit of the parameter
    // The color jumps at the start, or changes so fast that it must begin at the right pixel.
    bool sharp;
    BlendColor blend; // the same color in single precision
    double steepest;  // the largest of the color channels' slopes, without sign

    // How far along the color span a parameter is.
    double distanceTo(double parameter) const { return std::clamp(parameter - anchor, 0.0, reach); }
    Channels at(double parameter) const;
    bool flat() const { return reach == 0; }
    bool opaque() const { return color[3] == 1 && slope[3] == 0; }
};

// Keeps its memory from one ramp to the next.
class ColorSpans {
  public:
    enum class Outcome { Ready, TooMany };

    // Lays out the color spans for the parameters from `lowest` to `highest`; beyond them only pad is right.
    // Too many are the color spans of a ramp that repeats so often that there would be more of them than are
    // worth walking.
    Outcome layOut(const drawing::Ramp& ramp, drawing::Spread spread, double lowest, double highest);
    // One color everywhere.
    void layOut(const drawing::RampColor& color);

    // Ascending; at least one.
    std::span<const ColorSpan> all() const { return colorSpans_; }
    // The index of the color span that a parameter lies in.
    std::size_t find(double parameter) const;

  private:
    enum class Direction { Forward, Backward };

    // The part of the ramp between two positions, put at `offset` plus the position or `offset` minus it.
    void addPart(const drawing::Ramp& ramp, double from, double to, double offset, Direction direction);
    void addForward(const drawing::RampStop& low, const drawing::RampStop& high, double from, double offset);
    void addBackward(const drawing::RampStop& low, const drawing::RampStop& high, double to, double offset);
    void add(double start, const drawing::RampColor& color);
    void add(double start, double anchor, double reach, const drawing::RampColor& from,
             const drawing::RampColor& to);
    void append(ColorSpan colorSpan);

    std::vector<ColorSpan> colorSpans_;
};

} // namespace easel::paint
