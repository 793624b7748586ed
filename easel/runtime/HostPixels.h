// Between the pixels of the host interface, which have 16 bits, and those of ports.
#pragma once

#include "easel/paint/pixels/PixelGeometry.h"
#include "host/Geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace easel::runtime {

// The number itself or the nearest that 16 bits reach.
inline double withinPixels(double coordinate) {
    return std::clamp<double>(coordinate, std::numeric_limits<short>::min(),
                              std::numeric_limits<short>::max());
}

// The pixel that a coordinate lies in.
inline short pixelAt(double coordinate) {
    return static_cast<short>(withinPixels(std::floor(coordinate)));
}
// The pixel corner that a coordinate is nearest to; 0 for what is no number.
inline int nearestCorner(double coordinate) {
    return std::isnan(coordinate) ? 0 : static_cast<int>(std::lround(withinPixels(coordinate)));
}

inline paint::PixelPoint fromHost(const TPoint<double>& point) {
    return {nearestCorner(point.h), nearestCorner(point.v)};
}
inline paint::PixelRect fromHost(const TRect<short>& rect) {
    return {.left = rect.left, .top = rect.top, .right = rect.right, .bottom = rect.bottom};
}
inline TRect<short> toHost(const paint::PixelRect& rect) {
    return {static_cast<short>(rect.top), static_cast<short>(rect.left), static_cast<short>(rect.bottom),
            static_cast<short>(rect.right)};
}

} // namespace easel::runtime
