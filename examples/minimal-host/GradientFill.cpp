// A stored gradient on a rectangle, as docs/host-interface.md tells it.
#include "GradientFill.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

std::array<TPoint<double>, 4> Corners(TRect<double> const& box) {
    return {box.TopLeft(), box.TopRight(), box.BottomRight(), box.BottomLeft()};
}

double Dot(TPoint<double> const& a, TPoint<double> const& b) {
    return a.h * b.h + a.v * b.v;
}

/// How far the point lies along the stored direction, which is counter-clockwise while v points down.
double Along(CosSin const& direction, TPoint<double> const& point) {
    return Dot({direction.cos, -direction.sin}, point);
}

std::uint16_t Mix(std::uint16_t from, std::uint16_t to, double share) {
    int const difference = to - from;
    return static_cast<std::uint16_t>(std::lround(from + difference * share));
}

RGBColor Mix(CGradientColor const& from, CGradientColor const& to, double position) {
    double const share = (position - from.Percent()) / (to.Percent() - from.Percent());
    RGBColor const a = from.ColorRGB();
    RGBColor const b = to.ColorRGB();
    return {Mix(a.red, b.red, share), Mix(a.green, b.green, share), Mix(a.blue, b.blue, share)};
}

/// The color of the ramp: between two stops a mixture of both, beyond the outermost ones theirs. Of stops at
/// the same position the last one counts, and the last of all where the position is not a number.
RGBColor RampColor(std::list<CGradientColor> const& stops, double position) {
    auto const next = std::find_if(stops.begin(), stops.end(),
                                   [&](CGradientColor const& stop) { return position < stop.Percent(); });
    if (next == stops.begin()) {
        return next->ColorRGB();
    }
    auto const before = std::prev(next);
    return next == stops.end() ? before->ColorRGB() : Mix(*before, *next, position);
}

} // namespace

GradientFill::GradientFill(CGradientData const& record, TRect<double> const& box)
    : record_(record), direction_(static_cast<double>(record.Angle())),
      start_(box.TopLeft() + record.Start() * box.GetSize()),
      end_(box.TopLeft() + record.End() * box.GetSize()) {
    first_ = last_ = Along(direction_, box.TopLeft());
    for (TPoint<double> const& corner : Corners(box)) {
        first_ = std::min(first_, Along(direction_, corner));
        last_ = std::max(last_, Along(direction_, corner));
        radius_ = std::max(radius_, LineLength(end_, corner));
    }
}

RGBColor GradientFill::ColorAt(TPoint<double> const& point) const {
    bool const linear = record_.Type() == kLinearGradient;
    return RampColor(record_.ColorList(), linear ? LinearParameter(point) : RadialParameter(point));
}

double GradientFill::LinearParameter(TPoint<double> const& point) const {
    return (Along(direction_, point) - first_) / (last_ - first_);
}

// The circle at t has its centre at start + t (end - start) and the radius t times the outer one; looked for
// is the t whose circle goes through the point.
double GradientFill::RadialParameter(TPoint<double> const& point) const {
    TPoint<double> const axis = end_ - start_;
    TPoint<double> const away = point - start_;
    double const square = radius_ * radius_ - Dot(axis, axis);
    double const half = Dot(axis, away);
    return (std::sqrt(half * half + square * Dot(away, away)) - half) / square;
}
