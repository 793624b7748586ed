// Blurs pictures with a bell curve, or what comes near it.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The picture blurred with these standard deviations, in pixels, not below 0. What lies outside of `region`
// is as the mode says.
Surface blurred(const Surface& picture, double deviationX, double deviationY, const PixelRect& region,
                drawing::EdgeMode edge);
// The same where all that lies outside of the picture is transparent.
Surface blurred(const Surface& picture, double deviationX, double deviationY);

// How many pixels away a pixel may have a part in a blurred one.
int blurReach(double deviation);

} // namespace easel::paint
