// Makes pictures thinner or fatter.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The radii are in whole pixels, not below 0; outside of the picture all is transparent.
Surface morphed(drawing::MorphologyEffect::Operator how, int radiusX, int radiusY, const Surface& picture);

} // namespace easel::paint
