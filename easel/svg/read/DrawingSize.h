// How large a drawing is whose root does not say all of it.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/svg/read/Viewport.h"

#include <vector>

namespace easel::svg {

// In drawing units. A side that is not known is 0.
struct DrawingSize {
    double width = 0;
    double height = 0;
};

// The viewport of a drawing that does not say, and what it measures if nothing is in it.
inline constexpr DrawingSize kUsualSize{300, 150};

// A side that is not known follows from the other one and the shape of the view box, or is the view box's
// own.
DrawingSize completed(DrawingSize size, const ViewBox& viewBox);

// A side that is not known reaches from the origin as far as the objects do, strokes included.
DrawingSize settled(DrawingSize size, const std::vector<drawing::ObjectPtr>& objects);

} // namespace easel::svg
