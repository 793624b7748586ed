// Colors between sRGB and linear light.
#pragma once

#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The same colors with channels in proportion to light, and back.
Surface inLinearLight(const Surface& picture);
Surface inSrgb(const Surface& picture);

} // namespace easel::paint
