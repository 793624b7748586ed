#include "easel/svg/read/Ramp.h"

#include <algorithm>
#include <cmath>

namespace easel::svg {

using drawing::FittedStop;
using drawing::Rgb16;

namespace {

std::uint16_t between(std::uint16_t a, std::uint16_t b, double t) {
    return static_cast<std::uint16_t>(std::lround(a + (static_cast<double>(b) - a) * t));
}

// The stop that the ramp between two stops has at `position`.
FittedStop interpolated(const FittedStop& a, const FittedStop& b, double position) {
    const double t = (position - a.position) / (b.position - a.position);
    return {position, Rgb16{between(a.color.red, b.color.red, t), between(a.color.green, b.color.green, t),
                            between(a.color.blue, b.color.blue, t)}};
}

std::vector<FittedStop> ordered(std::vector<FittedStop> stops) {
    double last = -std::numeric_limits<double>::infinity();
    for (FittedStop& stop : stops) {
        // A position that is not a number is not above the last one either.
        if (!(stop.position > last))
            stop.position = std::isfinite(last) ? last : 0;
        last = stop.position;
    }
    return stops;
}

} // namespace

std::vector<FittedStop> trimmedRamp(const std::vector<FittedStop>& given) {
    const std::vector<FittedStop> stops = ordered(given);
    std::vector<FittedStop> result;
    for (std::size_t i = 0; i < stops.size(); ++i) {
        const FittedStop& stop = stops[i];
        const bool inside = stop.position >= 0 && stop.position <= 1;
        if (i > 0) {
            const FittedStop& before = stops[i - 1];
            if (before.position < 0 && stop.position > 0)
                result.push_back(interpolated(before, stop, 0));
            if (before.position < 1 && stop.position > 1)
                result.push_back(interpolated(before, stop, 1));
        }
        if (inside)
            result.push_back(stop);
    }
    // A ramp that is over before 0, or begins after 1, has one color.
    if (result.empty()) {
        const FittedStop& nearest = stops.back().position < 0 ? stops.back() : stops.front();
        result = {{0, nearest.color}, {1, nearest.color}};
    }
    return result;
}

} // namespace easel::svg
