// Sums of neighboring pixels.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/PixelGeometry.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The kernel's cells are so many pixels apart; at least one each way.
Surface convolved(const drawing::ConvolveEffect& effect, PixelPoint step, const Surface& picture);

} // namespace easel::paint
