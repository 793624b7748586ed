// Where a gradient's parameter runs on a surface: its value at any point, in double precision.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/Gradient.h"

#include <variant>

namespace easel::paint {

// The parameter runs from 0 at `start` along `axis` to 1.
struct LinearMap {
    drawing::Affine toGradient; // from surface coordinates
    drawing::Point start;
    drawing::Point axis;
    double lengthSquared;

    double at(drawing::Point surface) const;
};

// The parameter tells which circle of the family from (centre, radius) at 0 by (centreStep, radiusStep) to 1
// passes through a point; where several do, the largest parameter with a radius of at least 0 counts.
struct RadialMap {
    drawing::Affine toGradient; // from surface coordinates
    drawing::Point centre;
    double radius;
    drawing::Point centreStep;
    double radiusStep;

    // NaN where no circle passes.
    double at(drawing::Point surface) const;
};

// A gradient without extent: one color everywhere.
struct FlatMap {};

using ParameterMap = std::variant<FlatMap, LinearMap, RadialMap>;

// `toSurface` maps drawing coordinates to surface coordinates.
ParameterMap parameterMapOf(const drawing::Gradient& gradient, const drawing::Affine& toSurface);

// The position on the ramp that a parameter stands for. NaN stays NaN.
double spreadPosition(double parameter, drawing::Spread spread);

} // namespace easel::paint
