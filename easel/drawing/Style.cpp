#include "easel/drawing/Style.h"

#include <algorithm>
#include <numbers>

namespace easel::drawing {

bool strokes(const Style& style) {
    return !std::holds_alternative<NoPaint>(style.stroke.paint) && style.stroke.width > 0 &&
           style.stroke.opacity > 0;
}

double strokeReach(const Style& style) {
    if (!strokes(style))
        return 0;
    double factor = 1;
    if (style.stroke.join == LineJoin::Miter)
        factor = std::max(factor, style.stroke.miterLimit);
    if (style.stroke.cap == LineCap::Square)
        factor = std::max(factor, std::numbers::sqrt2);
    return style.stroke.width / 2 * factor;
}

} // namespace easel::drawing
