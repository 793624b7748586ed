// Pixels as paint.
#pragma once

#include "easel/drawing/Geometry.h"

#include <cstddef>
#include <cstdint>

namespace easel::paint {

// Pixels that someone else owns. One covers the square from (x, y) to (x + 1, y + 1) of the image's own
// units.
struct Image {
    const std::uint32_t* pixels = nullptr; // premultiplied, as on a surface
    int width = 0;                         // above 0
    int height = 0;
    std::ptrdiff_t stride = 0; // from row to row, in pixels
    drawing::Affine toDrawing; // from the image's units
    bool repeats = false;      // both ways without end; else the outermost pixels go on
    bool smooth = true;        // else a place takes the color of the one pixel that it lies in

    const std::uint32_t* row(int y) const { return pixels + y * stride; }
};

} // namespace easel::paint
