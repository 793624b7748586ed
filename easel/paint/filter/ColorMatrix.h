// Changes colors by a matrix.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

Surface changedBy(const drawing::ColorMatrixEffect& effect, const Surface& picture);

} // namespace easel::paint
