// The gradient of a shape as the tool sees it, with what stays beside it.
#pragma once

#include "easel/drawing/GradientDescription.h"
#include "easel/drawing/Object.h"

namespace easel::drawing {

struct ShapeGradient {
    ObjectGradient record;  // empty: the shape has no gradient
    RemainderPtr remainder; // null: none
    Loss loss = Loss::None; // what a first change of the record costs
};

// The object's own record; for an object that is still filled as its file says, the description of the file's
// gradient. Only closed kinds have one.
ShapeGradient shapeGradientOf(const Object& object);

// Record and remainder of any gradient on an outline (drawing coordinates).
ShapeGradient described(const Gradient& gradient, const Path& outline);

// What fills an object that shows no record: its pattern, or what its file says.
Paint plainFillOf(const Object& object);

} // namespace easel::drawing
