// Colors that blend with those below them.
#pragma once

#include "easel/drawing/BlendMode.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The pixel `above`, made fainter by `opacity` (0 to 1), on the one below.
std::uint32_t blendedPixel(std::uint32_t below, std::uint32_t above, double opacity, drawing::BlendMode mode);

// The same for each pixel of two pictures of one size.
Surface blended(drawing::BlendMode mode, const Surface& above, const Surface& below);

} // namespace easel::paint
