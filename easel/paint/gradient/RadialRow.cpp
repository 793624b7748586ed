// The two-point conical gradient, as SVG and the canvas of HTML define it: the parameter at a point is the
// largest t whose circle passes through it, with centre c + t d and radius r + t s. With p counted from c,
// that is the quadratic equation |p - t d| = r + t s. Where the start circle lies inside the end circle, d is
// shorter than s, and the larger root always has a radius that is not negative. Along a row p grows evenly,
// which makes the root's argument a quadratic of the pixel's index and t one branch of a hyperbola, at the
// cost of a square root per pixel:
//
//       t |
//         |  \                      /
//       1 +---\--------------------/---    where the row crosses the end circle
//         |    '.                .'
//         |      '-.          .-'          t = scale (sqrt(u u + height) + lean u) + base
//         |         '--.__.--'
//         +-------------+-----------> x    u = x - lowest; `lean` tilts the branch, and `height` is 0 for the
//                     lowest               row through the point where the circles' radius is 0
#include "easel/paint/gradient/RadialRow.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

using drawing::Point;

RadialRows::RadialRows(const RadialMap& map)
    : map_(map), step_(map.toGradient.direction({1, 0})), stepSquared_(dot(step_, step_)),
      depth_(map.radiusStep * map.radiusStep - dot(map.centreStep, map.centreStep)),
      b1_(dot(step_, map.centreStep)), curvature_(b1_ * b1_ + depth_ * stepSquared_),
      scale_(std::sqrt(curvature_) / depth_), lean_(-b1_ / std::sqrt(curvature_)) {}

RowCircle RadialRows::circle(double parameter) const {
    const double radius = map_.radius + parameter * map_.radiusStep;
    return {radius > 0 ? radius * radius / stepSquared_ : -1, parameter * b1_ / stepSquared_,
            parameter * cross(step_, map_.centreStep) / stepSquared_};
}

// The parameter t solves -depth t^2 - 2 b t + c = 0 with b linear and c quadratic in the pixel's index; its
// larger solution is (sqrt(b b + depth c) - b) / depth, and the root's argument has its minimum at `lowest`.
RadialRow::RadialRow(const RadialRows& rows, int y) : lean(rows.lean_), scale(rows.scale_) {
    const RadialMap& map = rows.map_;
    const Point step = rows.step_;
    const Point origin = map.toGradient({0.5, y + 0.5}) - map.centre;
    const double b0 = dot(origin, map.centreStep) + map.radius * map.radiusStep;
    lowest = -(b0 * rows.b1_ + rows.depth_ * dot(origin, step)) / rows.curvature_;
    const Point nearest = origin + step * lowest;
    const double b = b0 + rows.b1_ * lowest;
    const double root = b * b + rows.depth_ * (dot(nearest, nearest) - map.radius * map.radius);
    height = std::max(root / rows.curvature_, 0.0);
    rootOfHeight_ = std::sqrt(height);
    base = -b / rows.depth_;
    along_ = -dot(step, origin) / rows.stepSquared_;
    across_ = -cross(step, origin) / rows.stepSquared_;
}

PixelInterval RadialRow::inside(const RowCircle& circle) const {
    const double middle = along_ + circle.shift;
    const double distance = across_ + circle.rise;
    const double halfSquared = circle.radiusSquared - distance * distance;
    if (!(halfSquared >= 0))
        return {middle, middle};
    const double half = std::sqrt(halfSquared);
    return {middle - half, middle + half};
}

} // namespace easel::paint
