#include "easel/drawing/GradientRecord.h"

#include "easel/drawing/GradientFit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace easel::drawing {

namespace {

// Positions this close to an end of the ramp are there but for rounding.
constexpr double kPositionRounding = 1e-6;
// How much a circle may be stretched and still count as one.
constexpr double kRoundness = 1e-6;
// A focus closer to the circle than this share of its radius leaves too little to compute with.
constexpr double kFocusMargin = 1e-3;

// The share of its size by which the geometry of a gradient may be off and count as the same.
constexpr double kGeometryRounding = 1e-5;

// The points and radii of either kind of gradient in drawing coordinates.
struct Circles {
    Point start, end;
    double startRadius = 0;
    double radius = 0;
};

Circles circlesOf(const Gradient& gradient) {
    const Affine& map = gradient.toDrawing;
    if (const auto* const line = std::get_if<LinearGeometry>(&gradient.geometry))
        return {map(line->start), map(line->end), 0, 0};
    const auto& circles = std::get<RadialGeometry>(gradient.geometry);
    const double scale = std::sqrt(std::abs(map.determinant()));
    return {map(circles.focus), map(circles.centre), circles.focusRadius * scale, circles.radius * scale};
}

double snapped(double position) {
    for (const double end : {0.0, 1.0})
        if (std::abs(position - end) < kPositionRounding)
            return end;
    return position;
}

// Stops at the places that `place` gives their positions, trimmed to 0 to 1.
template <class Place> void setStops(CGradientData& record, const Ramp& ramp, Place place) {
    std::vector<RampStop> stops = ramp.stops();
    for (RampStop& stop : stops)
        stop.position = snapped(place(stop.position));
    // Beyond its ends the ramp is flat, as the record's is.
    stops.front().position = std::min(stops.front().position, 1.0);
    stops.back().position = std::max(stops.back().position, 0.0);
    const Ramp trimmed = Ramp(std::move(stops)).within(0, 1);
    record.ColorList().clear();
    for (const RampStop& stop : trimmed.stops())
        record.ColorList().emplace_back(RGBColor{stop.color.red, stop.color.green, stop.color.blue},
                                        stop.position);
}

std::optional<CGradientData> linearRecord(const Gradient& gradient, const LinearGeometry& line,
                                          const Path& outline) {
    // The parameter of the gradient is an affine function of the drawing's points: t = dot(slope, p -
    // origin).
    const Affine back = gradient.toDrawing.inverse();
    const Point along = line.end - line.start;
    const double square = dot(along, along);
    const Point slope{(back.a * along.x + back.b * along.y) / square,
                      (back.c * along.x + back.d * along.y) / square};
    const Point origin = gradient.toDrawing(line.start);
    if (!isFinite(slope) || !isFinite(origin) || length(slope) == 0)
        return std::nullopt;

    CGradientData record;
    record.SetType(kLinearGradient);
    // Adding 0 turns a negative zero into the ordinary one.
    record.SetAngle(static_cast<float>(-std::atan2(slope.y, slope.x) * 180 / std::numbers::pi) + 0.0F);
    const LinearGeometry fit = fitLine(outline, static_cast<double>(record.Angle()));
    const double atStart = dot(slope, fit.start - origin);
    const double atEnd = dot(slope, fit.end - origin);
    if (!std::isfinite(atStart) || !(atEnd > atStart))
        return std::nullopt;
    const bool spreads = atStart < -kPositionRounding || atEnd > 1 + kPositionRounding;
    if (spreads && gradient.spread != Spread::Pad)
        return std::nullopt;
    setStops(record, gradient.ramp, [&](double offset) { return (offset - atStart) / (atEnd - atStart); });
    return record;
}

bool keepsCircles(const Affine& map) {
    const double size = std::abs(map.a) + std::abs(map.b);
    const auto same = [size](double x, double y) { return std::abs(x - y) <= kRoundness * size; };
    return (same(map.a, map.d) && same(map.b, -map.c)) || (same(map.a, -map.d) && same(map.b, map.c));
}

std::optional<CGradientData> radialRecord(const Gradient& gradient, const RadialGeometry& circles,
                                          const Path& outline) {
    if (!keepsCircles(gradient.toDrawing) || gradient.spread != Spread::Pad || circles.focusRadius < 0 ||
        !(circles.focusRadius < circles.radius))
        return std::nullopt;
    // The circles shrink to a point at this parameter, not above 0; the record's begin there.
    const double apexAt = -circles.focusRadius / (circles.radius - circles.focusRadius);
    const Point apexInside = circles.focus + (circles.centre - circles.focus) * apexAt;
    const Point apex = gradient.toDrawing(apexInside);
    const Point centre = gradient.toDrawing(circles.centre);
    const double radius = circles.radius * std::hypot(gradient.toDrawing.a, gradient.toDrawing.b);
    const Point shift = centre - apex;
    if (!isFinite(apex) || !(length(shift) < radius * (1 - kFocusMargin)))
        return std::nullopt;

    // Of all circles of the family (apex + k shift, k radius) the record's is the smallest that holds every
    // corner of the bounds: for each corner the k where |apex + k shift - corner| = k radius, of these the
    // largest.
    const Box box = outline.bounds();
    if (!(box.width() > 0 && box.height() > 0))
        return std::nullopt;
    const double a = radius * radius - dot(shift, shift);
    double reach = 0;
    for (const Point corner : {Point{box.left, box.top}, Point{box.right, box.top},
                               Point{box.right, box.bottom}, Point{box.left, box.bottom}}) {
        const Point away = apex - corner;
        const double b = dot(away, shift);
        reach = std::max(reach, (b + std::sqrt(b * b + a * dot(away, away))) / a);
    }
    if (!std::isfinite(reach) || !(reach > 0))
        return std::nullopt;
    const auto fraction = [&box](Point p) {
        return TPoint<double>((p.x - box.left) / box.width(), (p.y - box.top) / box.height());
    };
    CGradientData record;
    record.SetType(kRadialGradient);
    record.SetStart(fraction(apex));
    record.SetEnd(fraction(apex + shift * reach));
    setStops(record, gradient.ramp, [&](double offset) { return (offset - apexAt) / (1 - apexAt) / reach; });
    return record;
}

} // namespace

std::optional<CGradientData> recordFor(const Gradient& gradient, const Path& outline) {
    if (!gradient.ramp.opaque())
        return std::nullopt;
    if (const auto* const line = std::get_if<LinearGeometry>(&gradient.geometry))
        return linearRecord(gradient, *line, outline);
    return radialRecord(gradient, std::get<RadialGeometry>(gradient.geometry), outline);
}

std::optional<Gradient> standardGradient(const CGradientData& record, const Path& outline) {
    if (record.ColorList().empty())
        return std::nullopt;
    Gradient gradient = fitGradient(record, outline);
    const Circles fit = circlesOf(gradient);
    if (!isFinite(fit.start) || !isFinite(fit.end) || !std::isfinite(fit.radius))
        return std::nullopt;
    gradient.ramp = gradient.ramp.within(0, 1);
    return gradient;
}

bool alike(const Gradient& a, const Gradient& b) {
    const std::vector<RampStop>& aStops = a.ramp.stops();
    const std::vector<RampStop>& bStops = b.ramp.stops();
    const auto sameStop = [](const RampStop& x, const RampStop& y) {
        return x.color == y.color && x.opacity == y.opacity &&
               std::abs(x.position - y.position) <= kPositionRounding;
    };
    if (!std::equal(aStops.begin(), aStops.end(), bStops.begin(), bStops.end(), sameStop) ||
        a.spread != b.spread)
        return false;
    const Circles first = circlesOf(a);
    const Circles second = circlesOf(b);
    const double size = 1 + length(first.start) + length(first.end) + first.radius;
    const double off = length(first.start - second.start) + length(first.end - second.end) +
                       std::abs(first.startRadius - second.startRadius) +
                       std::abs(first.radius - second.radius);
    return a.geometry.index() == b.geometry.index() && off <= kGeometryRounding * size;
}

} // namespace easel::drawing
