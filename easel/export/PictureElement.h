// Pixels as an element of SVG.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/paint/pixels/Surface.h"

#include <string>

namespace easel::exports {

// An image element that holds the pixels, not empty, as a PNG file; `toDrawing` maps pixels to where they
// show.
std::string pictureElement(const paint::Surface& pixels, const drawing::Affine& toDrawing);

} // namespace easel::exports
