// Masks of luminance for formats and libraries that know masks of alpha only.
#pragma once

#include "easel/drawing/Color.h"
#include "easel/drawing/Mask.h"

namespace easel::exports {

// From 0 to 1, of the color as it is stored.
double luminanceOf(const drawing::Rgb16& color);

// Whether the mask's luminance comes out as alpha where each color is painted with its luminance in the place
// of its opacity. That holds as long as all that is painted over something is white.
bool alphaTellsLuminance(const drawing::Mask& mask);

} // namespace easel::exports
