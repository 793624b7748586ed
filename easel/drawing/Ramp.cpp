// Ordering of stops and exact interpolation between them.
#include "easel/drawing/Ramp.h"

#include <algorithm>
#include <cmath>

namespace easel::drawing {

namespace {

double between(double lower, double upper, double part) {
    return lower + (upper - lower) * part;
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

RampStop stopBetween(const RampStop& lower, const RampStop& upper, double position) {
    const double part = partBetween(lower.position, upper.position, position);
    const auto channel = [part](std::uint16_t a, std::uint16_t b) {
        return static_cast<std::uint16_t>(std::lround(between(a, b, part)));
    };
    return {position,
            {channel(lower.color.red, upper.color.red), channel(lower.color.green, upper.color.green),
             channel(lower.color.blue, upper.color.blue)},
            between(lower.opacity, upper.opacity, part)};
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
        stop.opacity = validOpacity(stop.opacity);
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

Ramp Ramp::within(double low, double high) const {
    std::vector<RampStop> inside;
    for (std::size_t i = 0; i < stops_.size(); ++i) {
        const RampStop& stop = stops_[i];
        if (i > 0) {
            const RampStop& before = stops_[i - 1];
            for (const double end : {low, high})
                if (before.position < end && stop.position > end)
                    inside.push_back(stopBetween(before, stop, end));
        }
        if (stop.position >= low && stop.position <= high)
            inside.push_back(stop);
    }
    if (inside.empty()) {
        RampStop only = stops_.back().position < low ? stops_.back() : stops_.front();
        for (const double end : {low, high}) {
            only.position = end;
            inside.push_back(only);
        }
    }
    return Ramp(std::move(inside));
}

RampColor colorOf(const RampStop& stop) {
    return {stop.color.red / kUnitsPerLevel, stop.color.green / kUnitsPerLevel,
            stop.color.blue / kUnitsPerLevel, stop.opacity};
}

RampStop stopOf(double position, const RampColor& color) {
    const auto channel = [](double level) {
        return static_cast<std::uint16_t>(std::lrint(level * kUnitsPerLevel));
    };
    return {position, {channel(color.red), channel(color.green), channel(color.blue)}, color.opacity};
}

} // namespace easel::drawing
