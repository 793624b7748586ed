// The directions that the constraint key allows.
#pragma once

#include "host/Geometry.h"

namespace easel::runtime {

// The point nearest to `point` on a line through the anchor whose direction is a multiple of 15 degrees, so
// that it stays at the mouse's side. A point that is not finite, or the anchor itself, is left as it is.
TPoint<double> constrained(const TPoint<double>& anchor, const TPoint<double>& point);

} // namespace easel::runtime
