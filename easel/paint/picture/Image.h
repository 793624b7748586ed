// Pixels as paint.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/paint/pixels/Surface.h"

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
    // All of it, in its own units.
    drawing::Box box() const { return {0, 0, static_cast<double>(width), static_cast<double>(height)}; }
};

// Of a surface's pixels, which it goes on owning.
inline Image imageOf(const Surface& surface, const drawing::Affine& toDrawing, bool repeats, bool smooth) {
    return {surface.row(0), surface.width(), surface.height(), surface.stride() / kBytesPerPixel, toDrawing,
            repeats,        smooth};
}

} // namespace easel::paint
