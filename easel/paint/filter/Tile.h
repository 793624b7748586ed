// Repeats a part of a picture.
#pragma once

#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// A picture filled with what the picture holds in `tile`, which may lie outside of it in part.
Surface tiled(const Surface& picture, const PixelRect& tile);

} // namespace easel::paint
