// The transform of an element, about its origin.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/svg/style/Property.h"
#include "easel/svg/text/Length.h"

namespace easel::svg {

// From the element's units to those around it. `box` is that of the element in its own units, empty if it is
// not known; an origin that is measured by it is then measured by the viewport.
drawing::Affine transformOf(const StatedStyle& stated, const LengthContext& lengths, const drawing::Box& box);

} // namespace easel::svg
