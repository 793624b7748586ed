// A picture of one color.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The pixel of a color that is stated in sRGB.
std::uint32_t floodPixel(const drawing::FloodEffect& flood, bool linearLight);

} // namespace easel::paint
