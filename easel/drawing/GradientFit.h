// Fits a gradient record, which knows no shape, to the outline of an object.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"
#include "easel/drawing/Remainder.h"
#include "host/Gradient.h"

#include <vector>

namespace easel::drawing {

// The record's stops in the record's order, the first not above 0 and the last not below 1: the first and the
// last color are repeated at 0 and 1 where the ramp ends before. Empty only for a record without stops.
std::vector<RampStop> completeStops(const CGradientData& record);

// The line or circles, in drawing coordinates, that just cover the outline.
// Linear: the shortest line in the gradient's direction whose perpendiculars at its ends enclose the outline.
// Radial: from the start point to the circle about the end point that reaches the farthest corner of the
// outline's bounds; both points are fractions of those bounds, and the radii are single-precision values.
// With an ellipse, the corners are those of the bounds of the outline in the space where the ellipses are
// circles. Numbers may be infinite or NaN when the record's are, or when the outline has no extent.
GradientGeometry fitGeometry(const CGradientData& record, const Path& outline,
                             const std::optional<Affine>& ellipse = {});

// The gradient as it is painted, with its remainder (null: none).
Gradient fitGradient(const CGradientData& record, const Remainder* remainder, const Path& outline);

// The line of a linear gradient of that angle (degrees, as in the record).
LinearGeometry fitLine(const Path& outline, double degrees);

// The distance from the point to the farthest corner of the box.
double farthestCorner(const Box& box, Point from);

} // namespace easel::drawing
