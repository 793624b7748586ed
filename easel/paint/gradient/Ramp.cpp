// Ordering of stops and exact interpolation between them.
#include "easel/paint/gradient/Ramp.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

namespace {

double between(double lower, double upper, double part) {
    return lower + (upper - lower) * part;
}

// NaN counts as no opacity given.
double sanitised(double opacity) {
    return std::isnan(opacity) ? 1 : std::clamp(opacity, 0.0, 1.0);
}

// How far `position` is from lower to upper. A stop at infinity is never reached, so its neighbor's color
// holds.
double partBetween(double lower, double upper, double position) {
    if (std::isinf(lower))
        return 1;
    if (std::isinf(upper))
        return 0;
    return (position - lower) / (upper - lower);
}

} // namespace

Ramp::Ramp(std::vector<RampStop> stops) : stops_(std::move(stops)) {
    const RampStop fallback = stops_.empty() ? RampStop{0, {}, 0} : stops_.front();
    std::erase_if(stops_, [](const RampStop& stop) { return std::isnan(stop.position); });
    if (stops_.empty())
        stops_.push_back({0, fallback.color, fallback.opacity});
    std::stable_sort(stops_.begin(), stops_.end(),
                     [](const RampStop& a, const RampStop& b) { return a.position < b.position; });
    for (RampStop& stop : stops_) {
        stop.opacity = sanitised(stop.opacity);
        opaque_ = opaque_ && stop.opacity == 1;
    }
}

RampColor Ramp::at(double position) const {
    const auto upper =
        std::upper_bound(stops_.begin(), stops_.end(), position,
                         [](double value, const RampStop& stop) { return value < stop.position; });
    if (upper == stops_.begin())
        return colorOf(stops_.front());
    if (upper == stops_.end())
        return colorOf(stops_.back());
    const RampColor low = colorOf(*(upper - 1));
    const RampColor high = colorOf(*upper);
    const double part = partBetween((upper - 1)->position, upper->position, position);
    return {between(low.red, high.red, part), between(low.green, high.green, part),
            between(low.blue, high.blue, part), between(low.opacity, high.opacity, part)};
}

RampColor colorOf(const RampStop& stop) {
    return {stop.color.red / kUnitsPerLevel, stop.color.green / kUnitsPerLevel,
            stop.color.blue / kUnitsPerLevel, stop.opacity};
}

} // namespace easel::paint
