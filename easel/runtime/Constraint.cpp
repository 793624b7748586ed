// Moves a point into an allowed direction.
#include "easel/runtime/Constraint.h"

#include <cmath>
#include <numbers>

namespace easel::runtime {

namespace {

constexpr double kAllowedStep = 15; // degrees

// The direction as a unit vector, with both coordinates equal on the diagonals, so that these come out exact.
TPoint<double> unitVector(double degrees) {
    const CosSin turn(degrees);
    if (std::fmod(std::abs(degrees), 90.0) != 45.0)
        return {turn.cos, turn.sin};
    const double side = std::numbers::sqrt2 / 2;
    return {std::copysign(side, turn.cos), std::copysign(side, turn.sin)};
}

} // namespace

TPoint<double> constrained(const TPoint<double>& anchor, const TPoint<double>& point) {
    const TPoint<double> offset = point - anchor;
    if (!std::isfinite(offset.h) || !std::isfinite(offset.v))
        return point;
    const double angle = TLine<double>(anchor, point).Angle();
    const TPoint<double> direction = unitVector(std::round(angle / kAllowedStep) * kAllowedStep);
    const double distance = offset.h * direction.h + offset.v * direction.v;
    return {anchor.h + distance * direction.h, anchor.v + distance * direction.v};
}

} // namespace easel::runtime
