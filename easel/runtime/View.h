// How a drawing is seen in its window: zoom, scroll position and size.
#pragma once

#include "easel/drawing/Geometry.h"

namespace easel::runtime {

// Window points are the desktop's pixels (logical ones on a screen with a scale factor), from the content's
// top-left corner.
struct View {
    double zoom = 1;        // window points a drawing unit
    double deviceScale = 1; // image pixels a window point
    drawing::Point origin;  // the drawing coordinates of the window's top-left corner
    double width = 0;       // of the content, in window points
    double height = 0;

    drawing::Point toDrawing(drawing::Point window) const {
        return {origin.x + window.x / zoom, origin.y + window.y / zoom};
    }
    drawing::Point toWindow(drawing::Point inDrawing) const {
        return {(inDrawing.x - origin.x) * zoom, (inDrawing.y - origin.y) * zoom};
    }
    // The part of the drawing that shows.
    drawing::Box seen() const {
        const drawing::Point end = toDrawing({width, height});
        return {origin.x, origin.y, end.x, end.y};
    }
    // Takes drawing coordinates to pixels of the window's image.
    drawing::Affine toImage() const {
        const double scale = zoom * deviceScale;
        return {scale, 0, 0, scale, -origin.x * scale, -origin.y * scale};
    }
};

} // namespace easel::runtime
