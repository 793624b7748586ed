// Between the host interface's points, which store the vertical coordinate first, and those of drawings.
#pragma once

#include "easel/drawing/Geometry.h"
#include "host/Geometry.h"

namespace easel::runtime {

inline drawing::Point toPoint(const TPoint<double>& point) {
    return {point.h, point.v};
}
inline TPoint<double> toHost(drawing::Point point) {
    return {point.x, point.y};
}

// An empty box has no place; it becomes all zeros.
inline TRect<double> toHost(const drawing::Box& box) {
    return box.empty() ? TRect<double>() : TRect<double>(box.top, box.left, box.bottom, box.right);
}

} // namespace easel::runtime
