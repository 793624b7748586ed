// Which part of its ramp a radial gradient shows on a shape.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"

#include <optional>

namespace easel::drawing {

// What a gradient is put on, in drawing coordinates.
struct GradientFrame {
    Path outline;
    std::optional<FillRule> inside; // what of the outline is filled; nothing for a stroke along it
};

struct ParameterRange {
    double low = 0;
    double high = 1;
};

// The least and the greatest parameter that the circles have on the frame, to about a ten-thousandth of the
// frame's size. 0 to 1 for circles that do not lie one inside the other, or a frame without extent.
ParameterRange visibleRange(const RadialGeometry& circles, const Affine& toDrawing,
                            const GradientFrame& frame);

} // namespace easel::drawing
