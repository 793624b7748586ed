// Describes any gradient on a shape as the tool's record and the remainder that stays beside it.
#include "easel/drawing/GradientDescription.h"

#include "easel/drawing/GradientFit.h"
#include "easel/drawing/UnrolledRamp.h"

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
// The most stops that the repeats of a ramp may come to.
constexpr std::size_t kMostStops = 1000;

double snapped(double position) {
    for (const double end : {0.0, 1.0})
        if (std::abs(position - end) < kPositionRounding)
            return end;
    return position;
}

// The part of the gradient's own parameter that the record's runs over from 0 to 1.
struct Extent {
    double low = 0;
    double high = 1;

    double place(double parameter) const { return snapped((parameter - low) / (high - low)); }
};

// Puts the ramp where the record's parameter has it, trimmed to 0 to 1, as colors and opacity.
void setRamp(GradientDescription& result, const Gradient& gradient, Extent extent) {
    std::optional<Ramp> padded = gradient.ramp;
    if (extent.low < -kPositionRounding || extent.high > 1 + kPositionRounding)
        padded = unrolled(gradient.ramp, gradient.spread, extent.low, extent.high, kMostStops);
    if (!padded)
        result.loss = Loss::Repeats;
    std::vector<RampStop> stops = (padded ? *padded : gradient.ramp).stops();
    for (RampStop& stop : stops)
        stop.position = extent.place(stop.position);
    // Beyond its ends the ramp is flat, as the record's is.
    stops.front().position = std::min(stops.front().position, 1.0);
    stops.back().position = std::max(stops.back().position, 0.0);
    const Ramp ramp = Ramp(std::move(stops)).within(0, 1);
    result.record.ColorList().clear();
    for (const RampStop& stop : ramp.stops()) {
        result.record.ColorList().emplace_back(RGBColor{stop.color.red, stop.color.green, stop.color.blue},
                                               stop.position);
        if (!ramp.opaque())
            result.remainder.opacity.push_back({stop.position, stop.opacity});
    }
}

// What shows its last color alone.
GradientDescription oneColor(const Gradient& gradient) {
    GradientDescription result;
    result.loss = Loss::Extent;
    setRamp(result, {{}, {}, Spread::Pad, Ramp({gradient.ramp.stops().back()})}, {});
    return result;
}

GradientDescription described(const Gradient& gradient, const LinearGeometry& line, const Path& outline) {
    // The parameter of the gradient is an affine function of the drawing's points: t = dot(slope, p -
    // origin).
    const Affine back = gradient.toDrawing.inverse();
    const Point along = line.end - line.start;
    const double square = dot(along, along);
    const Point slope{(back.a * along.x + back.b * along.y) / square,
                      (back.c * along.x + back.d * along.y) / square};
    const Point origin = gradient.toDrawing(line.start);
    if (!isFinite(slope) || !isFinite(origin) || length(slope) == 0)
        return oneColor(gradient);

    GradientDescription result;
    result.record.SetType(kLinearGradient);
    // Adding 0 turns a negative zero into the ordinary one.
    result.record.SetAngle(static_cast<float>(-std::atan2(slope.y, slope.x) * 180 / std::numbers::pi) + 0.0F);
    const LinearGeometry fit = fitLine(outline, static_cast<double>(result.record.Angle()));
    const Extent extent{dot(slope, fit.start - origin), dot(slope, fit.end - origin)};
    const bool proper = std::isfinite(extent.low) && extent.high > extent.low;
    setRamp(result, gradient, proper ? extent : Extent{});
    return result;
}

// The map without its translation, as a stretch that keeps areas, followed by a turn (and mirror) and a
// scale; of these the stretch. The polar decomposition of the map.
Affine stretchOf(const Affine& map) {
    const double det = std::abs(map.determinant());
    const double p = map.a * map.a + map.c * map.c;
    const double q = map.a * map.b + map.c * map.d;
    const double r = map.b * map.b + map.d * map.d;
    const double size = std::sqrt(p + r + 2 * det) * std::sqrt(det);
    return {(p + det) / size, q / size, q / size, (r + det) / size, 0, 0};
}

bool isRound(const Affine& stretch) {
    return std::abs(stretch.a - stretch.d) <= kRoundness && std::abs(stretch.b) <= kRoundness;
}

// A family of circles that begins as the point `apex` and has grown to the radius `radius` at apex + shift.
struct Cone {
    Point apex;
    Point shift;
    double radius = 0;
    double apexAt = 0; // the gradient's parameter there
    Loss loss = Loss::None;
};

// In the gradient's own space.
Cone coneOf(const RadialGeometry& circles) {
    Cone cone{circles.focus, circles.centre - circles.focus, circles.radius, 0, Loss::None};
    const double growth = circles.radius - circles.focusRadius;
    if (circles.focusRadius > 0 && growth > 0) {
        // The circles shrink to a point at this parameter, not above 0; the record's begin there.
        cone.apexAt = -circles.focusRadius / growth;
        cone.apex = circles.focus + cone.shift * cone.apexAt;
        cone.shift = circles.centre - cone.apex;
    }
    const double farthest = circles.radius * (1 - kFocusMargin);
    if (circles.focusRadius < 0 || growth <= 0 || !(length(cone.shift) < farthest)) {
        cone = {circles.focus, circles.centre - circles.focus, circles.radius, 0, Loss::Focus};
        if (const double away = length(cone.shift); away >= farthest && away > 0)
            cone.shift = cone.shift * (farthest / away * (1 - kFocusMargin));
        cone.apex = circles.centre - cone.shift;
    }
    return cone;
}

// Of all circles of the family (apex + k shift, k radius) the record's is the smallest that holds every
// corner of the box: for each corner the k where |apex + k shift - corner| = k radius, of these the largest.
double reachOf(const Cone& cone, const Box& box) {
    const double a = cone.radius * cone.radius - dot(cone.shift, cone.shift);
    double reach = 0;
    for (const Point corner : {Point{box.left, box.top}, Point{box.right, box.top},
                               Point{box.right, box.bottom}, Point{box.left, box.bottom}}) {
        const Point away = cone.apex - corner;
        const double b = dot(away, cone.shift);
        reach = std::max(reach, (b + std::sqrt(b * b + a * dot(away, away))) / a);
    }
    return reach;
}

TPoint<double> fractionOf(const Box& box, Point p) {
    const auto part = [](double value, double low, double high) {
        return high > low ? (value - low) / (high - low) : 0.5;
    };
    return {part(p.x, box.left, box.right), part(p.y, box.top, box.bottom)};
}

GradientDescription described(const Gradient& gradient, const RadialGeometry& circles, const Path& outline) {
    const Cone own = coneOf(circles);
    const Affine& map = gradient.toDrawing;
    const Affine stretch = stretchOf(map);
    const Affine shrink = stretch.inverse();
    // In the space that the stretch starts from the circles are circles, and the fitting is done there.
    const Cone cone{shrink(map(own.apex)), shrink.direction(map.direction(own.shift)),
                    own.radius * std::sqrt(std::abs(map.determinant())), own.apexAt, own.loss};
    const double reach = reachOf(cone, outline.transformed(shrink).bounds());
    const Point start = stretch(cone.apex);
    const Point end = stretch(cone.apex + cone.shift * reach);
    if (!isFinite(start) || !isFinite(end) || !std::isfinite(reach) || !(reach > 0) || !(own.radius > 0))
        return oneColor(gradient);

    GradientDescription result;
    result.loss = own.loss;
    result.record.SetType(kRadialGradient);
    result.record.SetStart(fractionOf(outline.bounds(), start));
    result.record.SetEnd(fractionOf(outline.bounds(), end));
    if (!isRound(stretch))
        result.remainder.ellipse = stretch;
    setRamp(result, gradient, {own.apexAt, own.apexAt + (1 - own.apexAt) * reach});
    return result;
}

} // namespace

GradientDescription describe(const Gradient& gradient, const Path& outline) {
    if (!gradient.toDrawing.invertible())
        return oneColor(gradient);
    return std::visit([&](const auto& geometry) { return described(gradient, geometry, outline); },
                      gradient.geometry);
}

} // namespace easel::drawing
