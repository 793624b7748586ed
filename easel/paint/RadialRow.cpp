// The quadratic equation of a row, solved for the whole row at once.
#include "easel/paint/RadialRow.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

using drawing::Point;

// The parameter t solves -depth t^2 - 2 b t + c = 0 with b linear and c quadratic in the pixel's index; its
// larger solution is (sqrt(b b + depth c) - b) / depth, and the root's argument has its minimum at `lowest`.
RadialRow::RadialRow(const RadialMap& map, int y)
    : map_(map), origin_(map.toGradient({0.5, y + 0.5}) - map.centre),
      step_(map.toGradient.direction({1, 0})) {
    const double depth = map.radiusStep * map.radiusStep - dot(map.centreStep, map.centreStep);
    const double b0 = dot(origin_, map.centreStep) + map.radius * map.radiusStep;
    const double b1 = dot(step_, map.centreStep);
    const double curvature = b1 * b1 + depth * dot(step_, step_);
    lowest = -(b0 * b1 + depth * dot(origin_, step_)) / curvature;
    const Point nearest = origin_ + step_ * lowest;
    const double b = b0 + b1 * lowest;
    const double root = b * b + depth * (dot(nearest, nearest) - map.radius * map.radius);
    height = std::max(root / curvature, 0.0);
    rootOfHeight = std::sqrt(height);
    inverseSquare_ = 1 / dot(step_, step_);
    scale = std::sqrt(curvature) / depth;
    lean = -b1 / std::sqrt(curvature);
    base = -b / depth;
}

double RadialRow::distance(double x) const {
    const double u = x - lowest;
    return std::sqrt(u * u + height) + lean * u;
}

// Where the row meets the parameter's circle.
PixelInterval RadialRow::below(double parameter) const {
    const double radius = map_.radius + parameter * map_.radiusStep;
    const Point from = origin_ - map_.centreStep * parameter;
    const double stepSquared = dot(step_, step_);
    const double cross = step_.x * from.y - step_.y * from.x;
    const double discriminant = stepSquared * radius * radius - cross * cross;
    const double middle = -dot(step_, from) * inverseSquare_;
    if (!(radius > 0) || !(discriminant >= 0))
        return {middle, middle};
    const double half = std::sqrt(discriminant) * inverseSquare_;
    return {std::floor(middle - half) + 1, std::ceil(middle + half)};
}

} // namespace easel::paint
