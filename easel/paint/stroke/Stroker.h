// Turns a stroke into polygons to be filled.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/drawing/Style.h"

#include <functional>
#include <span>

namespace easel::paint {

// Takes the corners of one polygon after the other, which it may change; false ends it.
using StrokeReceiver = std::function<bool(std::span<drawing::Point>)>;

// What the pen covers along the outline, with its joins, caps and dashes, as polygons to be filled together
// by the non-zero rule. Outline and pen are in the same units; the result strays at most `tolerance` (above
// 0) from the exact shape. Gives a factor for the stroke's opacity: below 1 where dashes are too fine to be
// drawn one by one and the line is drawn whole, but fainter.
double strokePolygons(const drawing::Path& outline, const drawing::Stroke& stroke, double tolerance,
                      const StrokeReceiver& receiver);

} // namespace easel::paint
