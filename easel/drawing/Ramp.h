// The colors of a gradient along its parameter, as stops.
#pragma once

#include "easel/drawing/Color.h"

#include <vector>

namespace easel::drawing {

struct RampStop {
    double position = 0;
    Rgb16 color;
    double opacity = 1; // 0 to 1

    friend bool operator==(const RampStop&, const RampStop&) = default;
};

// A color before it is rounded: channels from 0 to 255, not premultiplied; opacity from 0 to 1.
struct RampColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;
};

// One 8-bit level in units of a 16-bit channel.
constexpr double kUnitsPerLevel = 257;

// Stops in ascending order, with a flat color before the first and after the last. Where stops share a
// position the color jumps from the first of them to the last, and the position itself has the last one's
// color.
class Ramp {
  public:
    // Any stops do: they are put in order (those of equal position keep theirs), positions may lie outside 0
    // to 1, and a stop whose position is not a number is left out. If none remains, the ramp is the color of
    // the first stop given, or transparent black without any.
    explicit Ramp(std::vector<RampStop> stops = {});

    // At least one.
    const std::vector<RampStop>& stops() const { return stops_; }
    bool opaque() const { return opaque_; }
    // The exact color at a position on the ramp's own scale.
    RampColor at(double position) const;

    // The ramp between two positions, `low` below `high`: stops beyond are replaced by the colors that the
    // ramp has at `low` and at `high`, to the nearest 16 bits. A ramp that is over before `low`, or begins
    // after `high`, has two equal stops there.
    Ramp within(double low, double high) const;

    friend bool operator==(const Ramp&, const Ramp&) = default;

  private:
    std::vector<RampStop> stops_;
    bool opaque_ = true;
};

RampColor colorOf(const RampStop& stop);
// The stop of that color at a position, its channels to the nearest 16 bits.
RampStop stopOf(double position, const RampColor& color);

} // namespace easel::drawing
