#include "easel/svg/read/Scene.h"

#include <algorithm>
#include <cmath>

namespace easel::svg {

namespace {
// Far beyond any drawing, and small enough that no later computation overflows.
constexpr double kFarthest = 1e9;
} // namespace

bool inRange(double value) {
    return std::abs(value) <= kFarthest;
}

std::optional<drawing::Path> placedPath(const drawing::Path& path, const drawing::Affine& toDrawing) {
    drawing::Path placed = path.transformed(toDrawing);
    const auto near = [](drawing::Point p) { return inRange(p.x) && inRange(p.y); };
    const auto points = placed.points();
    if (!std::all_of(points.begin(), points.end(), near))
        return std::nullopt;
    return placed;
}

} // namespace easel::svg
