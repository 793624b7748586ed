// What a user can do to the gradient of a shape or of its stroke without opening it: pure functions from one
// gradient to another.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/drawing/VisibleRange.h"
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

// Whether a gradient can be put on that part of the object: the fill of closed kinds, and strokes that show.
bool takesGradient(const Object& object, PaintStep part);

// What the gradient of that part is fitted to.
GradientFrame frameOf(const Object& object, PaintStep part);

// Nothing for a part without a gradient and for kinds that carry none.
std::optional<WholeGradient> wholeGradientOf(const Object& object, PaintStep part = PaintStep::Fill);

// That part of the object, which takes gradients, shows this one from now on, whatever it showed. What it
// shows already changes nothing.
void putGradient(Object& object, const WholeGradient& gradient, PaintStep part = PaintStep::Fill);

// That part of the object has this opaque color from now on.
void putPlainColor(Object& object, Rgb16 color, PaintStep part = PaintStep::Fill);

// The gradient goes; what stays is its first color, so that the shape does not vanish from under the user's
// hand. Nothing happens to a part without a gradient.
void removeGradient(Object& object, PaintStep part = PaintStep::Fill);

// The commands on one gradient. What a command does not name stays.
WholeGradient madeOpaque(WholeGradient gradient);
// Without an ellipse, circles are left.
WholeGradient madeCircular(WholeGradient gradient);
// Every opacity times the factor (not negative), at most 1. An opaque gradient is one of opacity 1.
WholeGradient opacityScaled(WholeGradient gradient, double factor);
// What is shown of the ramp on the frame is mirrored: the color that was last comes first, and opacity goes
// with its colors. What of the ramp lies beyond is not seen and may be lost.
WholeGradient reversed(WholeGradient gradient, const GradientFrame& frame);
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
