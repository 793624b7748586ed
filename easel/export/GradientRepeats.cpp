#include "easel/export/GradientRepeats.h"

#include <array>
#include <cmath>

namespace easel::exports {

using drawing::Box;
using drawing::LinearGeometry;
using drawing::Point;
using drawing::RadialGeometry;
using drawing::RampColor;

namespace {

constexpr double kMostRepeats = 20'000;

// How often a gradient repeats from one corner of a box in its own space to the other, where it is slowest
// for circles that do not share a centre.
double repeatsWithin(const Box& box, const LinearGeometry& line) {
    const Point along = line.end - line.start;
    return (std::abs(along.x) * box.width() + std::abs(along.y) * box.height()) /
           (along.x * along.x + along.y * along.y);
}
double repeatsWithin(const Box& box, const RadialGeometry& circles) {
    const Point apart = circles.centre - circles.focus;
    return std::hypot(box.width(), box.height()) / 2 /
           (std::abs(circles.radius - circles.focusRadius) + std::hypot(apart.x, apart.y));
}

// Colors that can be added: multiplied by their opacity, which comes last.
using Sum = std::array<double, 4>;

void add(Sum& sum, const RampColor& color, double weight) {
    const double share = color.opacity * weight;
    sum[0] += color.red * share;
    sum[1] += color.green * share;
    sum[2] += color.blue * share;
    sum[3] += share;
}

RampColor between(const RampColor& a, const RampColor& b) {
    return {(a.red + b.red) / 2, (a.green + b.green) / 2, (a.blue + b.blue) / 2, (a.opacity + b.opacity) / 2};
}

// Between two stops the products of colors and opacities are of the second degree, which Simpson's rule
// integrates exactly.
drawing::RampStop meanOf(const drawing::Ramp& ramp) {
    const drawing::Ramp period = ramp.within(0, 1);
    const std::vector<drawing::RampStop>& stops = period.stops();
    Sum sum{};
    for (std::size_t i = 1; i < stops.size(); ++i) {
        const RampColor first = colorOf(stops[i - 1]);
        const RampColor last = colorOf(stops[i]);
        const double length = stops[i].position - stops[i - 1].position;
        add(sum, first, length / 6);
        add(sum, between(first, last), length * 4 / 6);
        add(sum, last, length / 6);
    }
    add(sum, colorOf(stops.front()), stops.front().position);
    add(sum, colorOf(stops.back()), 1 - stops.back().position);
    if (!(sum[3] > 0))
        return {0, {}, 0};
    return drawing::stopOf(0, {sum[0] / sum[3], sum[1] / sum[3], sum[2] / sum[3], sum[3]});
}

} // namespace

std::optional<drawing::RampStop> meanOfRepeats(const drawing::Gradient& gradient, const Box& shown) {
    if (gradient.spread == drawing::Spread::Pad)
        return std::nullopt;
    const Box inGradient = boxUnder(shown, gradient.toDrawing.inverse());
    const double repeats = std::visit(
        [&](const auto& geometry) { return repeatsWithin(inGradient, geometry); }, gradient.geometry);
    return repeats > kMostRepeats ? std::optional(meanOf(gradient.ramp)) : std::nullopt;
}

} // namespace easel::exports
