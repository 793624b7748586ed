// A gradient: where its parameter runs, what happens beyond 0 and 1, and its colors.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/Ramp.h"

#include <cstdint>
#include <variant>

namespace easel::drawing {

enum class Spread : std::uint8_t { Pad, Reflect, Repeat };

// From point to point; colors are constant across the line, in the gradient's own space.
struct LinearGeometry {
    Point start;
    Point end;

    friend bool operator==(const LinearGeometry&, const LinearGeometry&) = default;
};

// From the circle (focus, focusRadius) to the circle (centre, radius).
struct RadialGeometry {
    Point focus;
    double focusRadius = 0;
    Point centre;
    double radius = 0;

    friend bool operator==(const RadialGeometry&, const RadialGeometry&) = default;
};

using GradientGeometry = std::variant<LinearGeometry, RadialGeometry>;

// Reflect and repeat use the part of the ramp from 0 to 1; pad uses all of it, stops outside 0 to 1 included.
// A geometry without extent (no length, no radius) or with numbers that are not finite shows the last stop's
// color. Opacity is interpolated unpremultiplied, as SVG asks.
struct Gradient {
    GradientGeometry geometry;
    Affine toDrawing; // from the geometry's space to drawing coordinates
    Spread spread = Spread::Pad;
    Ramp ramp;

    friend bool operator==(const Gradient&, const Gradient&) = default;
};

} // namespace easel::drawing
