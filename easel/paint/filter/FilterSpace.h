// Where a filter is computed.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

#include <functional>

namespace easel::paint {

// Where a filter is computed: the pixels of its pictures, whose top left corner is at (0, 0), and the map to
// them from the units of the filter, which neither turns nor mirrors.
struct FilterSpace {
    int width = 0;
    int height = 0;
    drawing::Affine toPixels;

    // A distance in the filter's units as a whole number of pixels, at least one each way.
    PixelPoint wholeSteps(drawing::Point distance) const;
};

// The pixels that the box, in the filter's units, touches, be they in the space or not.
PixelRect pixelsOf(const drawing::Box& box, const FilterSpace& space);

// Paints the objects of a step's picture.
using ImagePainting = std::function<Surface(const drawing::ImageEffect& effect)>;

} // namespace easel::paint
