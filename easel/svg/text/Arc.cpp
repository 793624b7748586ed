#include "easel/svg/text/Arc.h"

#include <cmath>
#include <numbers>

namespace easel::svg {

using drawing::Affine;
using drawing::Path;
using drawing::Point;

namespace {

// Where the arc runs on the unit circle, and the map that takes the unit circle to the ellipse.
struct UnitArc {
    double startAngle = 0;
    double sweepAngle = 0;
    Affine toEllipse;
};

UnitArc unitArc(Point from, Point to, const ArcShape& shape) {
    double rx = std::abs(shape.radiusX);
    double ry = std::abs(shape.radiusY);
    const Affine turn = Affine::rotation(shape.degrees);
    const Point half = turn.inverse().direction((from - to) * 0.5);
    const double stretch = (half.x / rx) * (half.x / rx) + (half.y / ry) * (half.y / ry);
    if (stretch > 1) {
        rx *= std::sqrt(stretch);
        ry *= std::sqrt(stretch);
    }
    // In units of the radii the chord's half is `chord`, and the centre lies across it.
    const Point chord{half.x / rx, half.y / ry};
    const double square = dot(chord, chord);
    double offset = std::sqrt(std::max(0.0, 1 / square - 1));
    const bool left = (shape.size == ArcSize::Large) == (shape.sweep == ArcSweep::Clockwise);
    if (left)
        offset = -offset;
    const Point centre{chord.y * offset, -chord.x * offset};
    const Point start = chord - centre;
    const Point end = chord * -1 - centre;

    UnitArc arc;
    arc.startAngle = std::atan2(start.y, start.x);
    arc.sweepAngle = std::atan2(end.y, end.x) - arc.startAngle;
    if (shape.sweep == ArcSweep::Clockwise && arc.sweepAngle < 0)
        arc.sweepAngle += 2 * std::numbers::pi;
    if (shape.sweep == ArcSweep::Counterclockwise && arc.sweepAngle > 0)
        arc.sweepAngle -= 2 * std::numbers::pi;
    const Affine linear = turn * Affine::scaling(rx, ry);
    const Point middle = midpoint(from, to) + linear.direction(centre);
    arc.toEllipse = Affine::translation(middle.x, middle.y) * linear;
    return arc;
}

Point onCircle(double angle) {
    return {std::cos(angle), std::sin(angle)};
}

} // namespace

void addArc(Path& path, Point from, Point to, const ArcShape& shape) {
    if (from == to)
        return;
    if (shape.radiusX == 0 || shape.radiusY == 0) {
        path.lineTo(to);
        return;
    }
    const UnitArc arc = unitArc(from, to, shape);
    // Radii that are not finite, or beyond what doubles can compute with, leave no angle.
    if (!std::isfinite(arc.sweepAngle)) {
        path.lineTo(to);
        return;
    }
    // A little less than a quarter of a circle each, so that rounding does not add a piece.
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(arc.sweepAngle) / 1.5708)));
    const double step = arc.sweepAngle / pieces;
    const double reach = 4.0 / 3 * std::tan(step / 4);
    for (int i = 0; i < pieces; ++i) {
        const double angle = arc.startAngle + i * step;
        const Point p0 = onCircle(angle);
        const Point p3 = onCircle(angle + step);
        const Point control1{p0.x - reach * p0.y, p0.y + reach * p0.x};
        const Point control2{p3.x + reach * p3.y, p3.y - reach * p3.x};
        const Point end = i + 1 == pieces ? to : arc.toEllipse(p3);
        path.cubicTo(arc.toEllipse(control1), arc.toEllipse(control2), end);
    }
}

} // namespace easel::svg
