// Outlines made of straight sides only.
#pragma once

#include "easel/drawing/Path.h"

namespace easel::runtime {

// The outline with its curves replaced by corners, at most `tolerance` drawing units off. All corners are
// finite, and at least one contour has an inside; where that cannot be, the path is empty.
drawing::Path polygonOutline(const drawing::Path& outline, double tolerance);

} // namespace easel::runtime
