// Coordinates of 16-bit pixels from numbers with a fraction.
#pragma once

#include <cmath>
#include <limits>

/// The integer part of a coordinate. What lies beyond 16 bits becomes the nearest pixel there is, and what is
/// not a number the pixel 0, since a gradient can hold such positions.
[[nodiscard]] inline short TruncateToPixel(double coordinate) {
    if (std::isnan(coordinate)) {
        return 0;
    }
    constexpr double kLowest = std::numeric_limits<short>::min();
    constexpr double kHighest = std::numeric_limits<short>::max();
    return static_cast<short>(std::fmin(std::fmax(coordinate, kLowest), kHighest));
}
