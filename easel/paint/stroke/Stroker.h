// Turns a stroke into polygons to be filled.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/drawing/Style.h"

#include <vector>

namespace easel::paint {

struct StrokeShape {
    // To be filled by the non-zero rule.
    std::vector<drawing::Contour> polygons;
    // Multiplies the stroke's opacity: below 1 where dashes are too fine to be drawn one by one and the line
    // is drawn whole, but fainter.
    double opacity = 1;
};

// What the pen covers along the outline, with its joins, caps and dashes. Outline and pen are in the same
// units; the result strays at most `tolerance` (above 0) from the exact shape.
StrokeShape strokeShape(const drawing::Path& outline, const drawing::Stroke& stroke, double tolerance);

} // namespace easel::paint
