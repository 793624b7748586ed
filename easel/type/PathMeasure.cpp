#include "easel/type/PathMeasure.h"

#include <algorithm>

namespace easel::type {

using drawing::Affine;
using drawing::Point;

namespace {
// Of the path's extent: far finer than letters are wide.
constexpr double kTolerance = 1e-5;
} // namespace

PathMeasure::PathMeasure(const drawing::Path& path) {
    const drawing::Box box = path.bounds();
    const double extent = std::max(box.width(), box.height());
    if (!(extent > 0) || !std::isfinite(extent))
        return;
    for (const drawing::Contour& contour : drawing::flatten(path, extent * kTolerance)) {
        for (std::size_t i = 1; i < contour.points.size(); ++i)
            add(contour.points[i - 1], contour.points[i]);
        if (contour.closed)
            add(contour.points.back(), contour.points.front());
    }
}

void PathMeasure::add(Point from, Point to) {
    const double length = drawing::length(to - from);
    if (!(length > 0))
        return;
    pieces_.push_back({from, (to - from) * (1 / length), length_, length});
    length_ += length;
}

std::optional<Affine> PathMeasure::at(double distance) const {
    if (pieces_.empty() || !(distance >= 0 && distance <= length_))
        return std::nullopt;
    const auto after = std::upper_bound(pieces_.begin(), pieces_.end(), distance,
                                        [](double d, const Piece& piece) { return d < piece.begin; });
    const Piece& piece = *(after - 1);
    const Point direction = piece.direction;
    const Point place = piece.from + direction * (distance - piece.begin);
    return Affine{direction.x, direction.y, -direction.y, direction.x, place.x, place.y};
}

Point PathMeasure::end() const {
    return pieces_.empty() ? Point{} : pieces_.back().from + pieces_.back().direction * pieces_.back().length;
}

} // namespace easel::type
