// Moves the ends of a gradient out to its outermost stops.
#include "easel/export/GradientRange.h"

#include <cmath>

namespace easel::exports {

using drawing::LinearGeometry;
using drawing::Point;
using drawing::RadialGeometry;

namespace {

struct Range {
    double low;
    double high;
};

LinearGeometry moved(const LinearGeometry& line, Range range) {
    const Point along = line.end - line.start;
    return {line.start + along * range.low, line.start + along * range.high};
}

RadialGeometry moved(const RadialGeometry& circles, Range range) {
    const Point along = circles.centre - circles.focus;
    const double growth = circles.radius - circles.focusRadius;
    return {circles.focus + along * range.low, std::max(0.0, circles.focusRadius + growth * range.low),
            circles.focus + along * range.high, std::max(0.0, circles.focusRadius + growth * range.high)};
}

// Circles of negative radius show nothing, so the range ends where the radius comes to 0.
Range seen(const RadialGeometry& circles, Range range) {
    const double growth = circles.radius - circles.focusRadius;
    const double vanishing = -circles.focusRadius / growth;
    if (growth > 0)
        range.low = std::max(range.low, vanishing);
    if (growth < 0)
        range.high = std::min(range.high, vanishing);
    return range;
}
Range seen(const LinearGeometry&, Range range) {
    return range;
}

drawing::Ramp moved(const drawing::Ramp& ramp, Range range) {
    std::vector<drawing::RampStop> stops = ramp.within(range.low, range.high).stops();
    for (drawing::RampStop& stop : stops)
        stop.position = (stop.position - range.low) / (range.high - range.low);
    return drawing::Ramp(std::move(stops));
}

bool proper(const LinearGeometry& line) {
    return isFinite(line.start) && isFinite(line.end) && line.start != line.end;
}
bool proper(const RadialGeometry& circles) {
    return isFinite(circles.focus) && isFinite(circles.centre) && std::isfinite(circles.focusRadius) &&
           std::isfinite(circles.radius) && (circles.radius > 0 || circles.focusRadius > 0) &&
           (circles.radius != circles.focusRadius || circles.focus != circles.centre);
}

} // namespace

drawing::Gradient withinUnitRange(const drawing::Gradient& gradient) {
    const std::vector<drawing::RampStop>& stops = gradient.ramp.stops();
    const Range all{std::min(0.0, stops.front().position), std::max(1.0, stops.back().position)};
    if (gradient.spread != drawing::Spread::Pad || (all.low >= 0 && all.high <= 1))
        return gradient;
    drawing::Gradient result = gradient;
    std::visit(
        [&](auto& geometry) {
            const Range range = seen(geometry, all);
            geometry = moved(geometry, range);
            result.ramp = moved(gradient.ramp, range);
        },
        result.geometry);
    return result;
}

std::optional<drawing::RampStop> onlyColor(const drawing::Gradient& gradient) {
    const bool drawn = std::visit([](const auto& geometry) { return proper(geometry); }, gradient.geometry);
    if (drawn && gradient.toDrawing.invertible())
        return std::nullopt;
    return gradient.ramp.stops().back();
}

} // namespace easel::exports
