// Fits a gradient record, which knows no shape, to the outline of an object.
#pragma once

#include "easel/drawing/Paint.h"
#include "easel/drawing/Path.h"
#include "host/Gradient.h"

#include <vector>

namespace easel::drawing {

struct FittedStop {
    double position = 0; // 0 at the start point or circle, 1 at the end; not limited to that range
    Rgb16 color;

    friend bool operator==(const FittedStop&, const FittedStop&) = default;
};

enum class FittedKind : std::uint8_t { Linear, Radial };

// A gradient as it is painted, in drawing coordinates. Numbers may be infinite or NaN when the record's are,
// or when the outline has no extent.
struct FittedGradient {
    FittedKind kind = FittedKind::Linear;
    Point start;
    Point end;
    double startRadius = 0; // radial only; the radii are single-precision values
    double endRadius = 0;
    // In the record's order, the first not above 0 and the last not below 1. Empty only for a record without
    // stops.
    std::vector<FittedStop> stops;
};

// The line or circles that just cover the outline, and the ramp extended flat to the whole of 0 to 1.
// Linear: the shortest line in the gradient's direction whose perpendiculars at its ends enclose the outline.
// Radial: from the start point to the circle about the end point that reaches the farthest corner of the
// outline's bounds; both points are fractions of those bounds.
FittedGradient fitGradient(const CGradientData& record, const Path& outline);

// The line of a linear gradient of that angle (degrees, as in the record).
LinearGeometry fitLine(const Path& outline, double degrees);

// The distance from the point to the farthest corner of the box.
double farthestCorner(const Box& box, Point from);

} // namespace easel::drawing
