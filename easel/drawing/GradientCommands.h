// What a user can do to the gradient of a shape without opening it: pure functions from one gradient to
// another.
#pragma once

#include "easel/drawing/Object.h"
#include "host/Gradient.h"

#include <optional>

namespace easel::drawing {

// A gradient that belongs to no shape, as it is copied from one and given to another.
struct WholeGradient {
    CGradientData record;
    Remainder remainder;
};

// Equal in every field.
bool same(const WholeGradient& a, const WholeGradient& b);

// Nothing for a shape without a gradient and for kinds that carry none.
std::optional<WholeGradient> wholeGradientOf(const Object& object);

// The object shows this gradient from now on, whatever it was filled with. Only for kinds that carry one.
void putGradient(Object& object, const WholeGradient& gradient);

// The object is filled with this opaque color from now on.
void putPlainColor(Object& object, Rgb16 color);

// The gradient goes; what stays is its first color, so that the shape does not vanish from under the user's
// hand. Nothing happens to an object without a gradient.
void removeGradient(Object& object);

// The commands on one gradient. What a command does not name stays.
WholeGradient madeOpaque(WholeGradient gradient);
// Without an ellipse, circles are left.
WholeGradient madeCircular(WholeGradient gradient);
// Every opacity times the factor (not negative), at most 1. An opaque gradient is one of opacity 1.
WholeGradient opacityScaled(WholeGradient gradient, double factor);
// The last color comes first; opacity goes with its colors.
WholeGradient reversed(WholeGradient gradient);
// Turns by degrees, counter-clockwise as seen. A radial gradient on a shape with these bounds turns about
// their centre, with its focus and its ellipse, in the drawing's units; its centre may thereby leave a shape
// that is longer than wide. Bounds without extent leave it as it is.
WholeGradient rotated(WholeGradient gradient, double degrees, const Box& bounds);
// The direction of a linear gradient, in degrees counter-clockwise as seen. A radial one has none and stays.
WholeGradient withAngle(WholeGradient gradient, double degrees);
// The stops of the colors at equal distances from 0 to 1, in their order. A single one stays.
WholeGradient withEvenStops(WholeGradient gradient);

// The angle that is the same direction, above -180 and not above 180.
double principalAngle(double degrees);

} // namespace easel::drawing
