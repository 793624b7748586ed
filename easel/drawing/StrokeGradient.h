// The gradient of a stroke as the commands on gradients see it.
#pragma once

#include "easel/drawing/ShapeGradient.h"

namespace easel::drawing {

// What the gradients of a stroke are fitted to, in drawing coordinates: an outline about as far around as the
// pen reaches. It has extent even where the object's own has none, as a straight line.
Path strokeFrame(const Object& object);

// The description of the gradient that the object is stroked with, on its frame. No record without one.
ShapeGradient strokeGradientOf(const Object& object);

} // namespace easel::drawing
