// A gradient ready to be painted: where its parameter runs, what happens beyond 0 and 1, and its colors.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/GradientFit.h"
#include "easel/drawing/Paint.h"
#include "easel/paint/gradient/Ramp.h"

#include <variant>

namespace easel::paint {

// Reflect and repeat use the part of the ramp from 0 to 1; pad uses all of it, stops outside 0 to 1 included.
// A geometry without extent (no length, no radius) or with numbers that are not finite shows the last stop's
// color.
struct Gradient {
    std::variant<drawing::LinearGeometry, drawing::RadialGeometry> geometry;
    drawing::Affine toDrawing; // from the geometry's space to drawing coordinates
    drawing::Spread spread = drawing::Spread::Pad;
    Ramp ramp;
};

Gradient gradientOf(const drawing::ForeignGradient& foreign);
Gradient gradientOf(const drawing::FittedGradient& fitted);

} // namespace easel::paint
