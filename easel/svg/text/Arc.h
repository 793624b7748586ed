// Elliptical arcs as cubic curves.
#pragma once

#include "easel/drawing/Path.h"

#include <cstdint>

namespace easel::svg {

enum class ArcSize : std::uint8_t { Small, Large };
enum class ArcSweep : std::uint8_t {
    Counterclockwise,
    Clockwise
}; // as seen with the vertical axis downwards

struct ArcShape {
    double radiusX = 0;
    double radiusY = 0;
    double degrees = 0; // from the horizontal axis to the ellipse's own
    ArcSize size = ArcSize::Small;
    ArcSweep sweep = ArcSweep::Clockwise;
};

// Continues the path, which is at `from`, by an arc to `to`. Radii too small for the way are enlarged, and a
// radius of 0 gives a line.
void addArc(drawing::Path& path, drawing::Point from, drawing::Point to, const ArcShape& shape);

} // namespace easel::svg
