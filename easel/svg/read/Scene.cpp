#include "easel/svg/read/Scene.h"

#include <cmath>

namespace easel::svg {

namespace {
// Far beyond any drawing, and small enough that no later computation overflows.
constexpr double kFarthest = 1e9;
} // namespace

void requireInRange(double value) {
    if (!(std::abs(value) <= kFarthest))
        throw ReadError{Fault::OutOfRange, "it holds a number that is out of range"};
}

drawing::Path placedPath(const drawing::Path& path, const drawing::Affine& toDrawing) {
    drawing::Path placed = path.transformed(toDrawing);
    for (const drawing::Point p : placed.points()) {
        requireInRange(p.x);
        requireInRange(p.y);
    }
    return placed;
}

} // namespace easel::svg
