// Maps and boxes between Cairo and ours.
#pragma once

#include "easel/drawing/Geometry.h"

#include <cairo.h>

namespace easel::exports {

inline cairo_matrix_t matrixOf(const drawing::Affine& map) {
    return {map.a, map.b, map.c, map.d, map.e, map.f};
}

// From what is painted now to the target.
inline drawing::Affine mapToTarget(cairo_t* cairo) {
    cairo_matrix_t matrix;
    cairo_get_matrix(cairo, &matrix);
    return {matrix.xx, matrix.yx, matrix.xy, matrix.yy, matrix.x0, matrix.y0};
}

// What is not clipped, in the coordinates of what is painted now.
inline drawing::Box shownBox(cairo_t* cairo) {
    drawing::Box shown;
    cairo_clip_extents(cairo, &shown.left, &shown.top, &shown.right, &shown.bottom);
    return shown;
}

} // namespace easel::exports
