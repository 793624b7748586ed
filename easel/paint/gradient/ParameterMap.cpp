// Evaluation of linear and two-circle gradients at a point.
#include "easel/paint/gradient/ParameterMap.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace easel::paint {

namespace {

using drawing::Affine;
using drawing::Point;

constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();

ParameterMap mapOf(const drawing::LinearGeometry& line, const Affine& toGradient) {
    const Point axis = line.end - line.start;
    const double lengthSquared = dot(axis, axis);
    if (!isFinite(line.start) || !std::isfinite(lengthSquared) || lengthSquared == 0)
        return FlatMap{};
    return LinearMap{toGradient, line.start, axis, lengthSquared};
}

ParameterMap mapOf(const drawing::RadialGeometry& circles, const Affine& toGradient) {
    const double radius = std::max(circles.focusRadius, 0.0);
    const double radiusStep = std::max(circles.radius, 0.0) - radius;
    const Point centreStep = circles.centre - circles.focus;
    const double size = dot(circles.focus, circles.focus) + dot(centreStep, centreStep) + radius * radius +
                        radiusStep * radiusStep;
    const bool hasExtent = radiusStep != 0 || (dot(centreStep, centreStep) > 0 && radius > 0);
    if (!std::isfinite(size) || !hasExtent)
        return FlatMap{};
    return RadialMap{toGradient, circles.focus, radius, centreStep, radiusStep};
}

} // namespace

double LinearMap::at(Point surface) const {
    return dot(toGradient(surface) - start, axis) / lengthSquared;
}

double RadialMap::at(Point surface) const {
    const Point offset = toGradient(surface) - centre;
    if (centreStep == Point{})
        return (std::sqrt(dot(offset, offset)) - radius) / radiusStep;
    // a t^2 - 2 b t + c = 0
    const double a = dot(centreStep, centreStep) - radiusStep * radiusStep;
    const double b = dot(offset, centreStep) + radius * radiusStep;
    const double c = dot(offset, offset) - radius * radius;
    const auto valid = [&](double t) { return std::isfinite(t) && radius + t * radiusStep >= 0; };
    const double discriminant = b * b - a * c;
    if (!(discriminant >= 0))
        return kNowhere;
    // The form without cancellation; a root that does not exist comes out as not finite.
    const double sum = b + std::copysign(std::sqrt(discriminant), b);
    const double one = sum / a;
    const double other = sum == 0 ? one : c / sum;
    const double larger = std::isfinite(one) ? std::max(one, other) : other;
    const double smaller = std::isfinite(one) ? std::min(one, other) : other;
    return valid(larger) ? larger : valid(smaller) ? smaller : kNowhere;
}

ParameterMap parameterMapOf(const drawing::Gradient& gradient, const Affine& toSurface) {
    const Affine whole = toSurface * gradient.toDrawing;
    const Affine toGradient = whole.inverse();
    const double sum =
        toGradient.a + toGradient.b + toGradient.c + toGradient.d + toGradient.e + toGradient.f;
    if (!whole.invertible() || !std::isfinite(sum))
        return FlatMap{};
    return std::visit([&](const auto& geometry) { return mapOf(geometry, toGradient); }, gradient.geometry);
}

double spreadPosition(double parameter, drawing::Spread spread) {
    switch (spread) {
    case drawing::Spread::Pad:
        return parameter;
    case drawing::Spread::Repeat:
        return parameter - std::floor(parameter);
    case drawing::Spread::Reflect: {
        const double inPair = parameter - 2 * std::floor(parameter / 2);
        return inPair > 1 ? 2 - inPair : inPair;
    }
    }
    return parameter;
}

} // namespace easel::paint
