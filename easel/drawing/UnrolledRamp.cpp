// Repeats of a ramp, period by period.
#include "easel/drawing/UnrolledRamp.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace easel::drawing {

namespace {

// The stops from 0 to 1, with one at either end.
std::vector<RampStop> wholePeriod(const Ramp& ramp) {
    std::vector<RampStop> stops = ramp.within(0, 1).stops();
    if (stops.front().position > 0)
        stops.insert(stops.begin(), {0, stops.front().color, stops.front().opacity});
    if (stops.back().position < 1)
        stops.push_back({1, stops.back().color, stops.back().opacity});
    return stops;
}

// A stop itself has the color that follows it on the ramp, which comes first in a period that runs backward;
// but nothing goes beyond the period's end.
double mirrored(double end, double position) {
    return std::min(std::nextafter(end - position, std::numeric_limits<double>::infinity()), end);
}

} // namespace

std::optional<Ramp> unrolled(const Ramp& ramp, Spread spread, double lowest, double highest,
                             std::size_t mostStops) {
    if (spread == Spread::Pad)
        return ramp;
    const std::vector<RampStop> period = wholePeriod(ramp);
    const double first = std::floor(lowest);
    const double last = std::max(first, std::ceil(highest) - 1);
    if (!((last - first + 1) * static_cast<double>(period.size()) <= static_cast<double>(mostStops)))
        return std::nullopt;
    std::vector<RampStop> stops;
    for (double begin = first; begin <= last; ++begin) {
        const bool backward = spread == Spread::Reflect && std::fmod(begin, 2) != 0;
        for (std::size_t i = 0; i < period.size(); ++i) {
            RampStop stop = period[backward ? period.size() - 1 - i : i];
            stop.position = backward ? mirrored(begin + 1, stop.position) : begin + stop.position;
            stops.push_back(stop);
        }
    }
    return Ramp(std::move(stops));
}

} // namespace easel::drawing
