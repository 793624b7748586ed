// Brings a ramp to exactly 0 to 1.
#include "easel/exchange/ClippedRamp.h"

#include <cmath>
#include <iterator>

namespace easel::exchange {
namespace {

std::uint16_t channelBetween(std::uint16_t from, std::uint16_t to, double part) {
    return static_cast<std::uint16_t>(
        std::lround(std::lerp(static_cast<double>(from), static_cast<double>(to), part)));
}

CGradientColor between(const CGradientColor& a, const CGradientColor& b, double position) {
    const double part = (position - a.Percent()) / (b.Percent() - a.Percent());
    const RGBColor from = a.ColorRGB();
    const RGBColor to = b.ColorRGB();
    return {{channelBetween(from.red, to.red, part), channelBetween(from.green, to.green, part),
             channelBetween(from.blue, to.blue, part)},
            position};
}

// The end of the ramp that `first` walks to: a stop at the edge, and none beyond it.
template <class Beyond> void clipFront(std::list<CGradientColor>& stops, double edge, Beyond beyond) {
    while (stops.size() > 1 && beyond(stops.front().Percent(), edge)) {
        const auto second = std::next(stops.begin());
        if (beyond(edge, second->Percent())) {
            stops.front() = between(stops.front(), *second, edge);
            return;
        }
        stops.pop_front();
    }
    if (stops.front().Percent() != edge) {
        const CGradientColor extended(stops.front().ColorRGB(), edge);
        if (beyond(stops.front().Percent(), edge))
            stops.front() = extended;
        else
            stops.push_front(extended);
    }
}

} // namespace

ClippedRamp clippedRamp(const CGradientData& gradient) {
    ClippedRamp ramp;
    for (const auto& stop : gradient.ColorList())
        if (std::isfinite(stop.Percent()))
            ramp.stops.push_back(stop);
    if (ramp.stops.size() < gradient.ColorList().size())
        ramp.notes.emplace_back("stops whose position is no number are left out");
    if (ramp.stops.empty())
        ramp.stops.emplace_back(
            gradient.ColorList().empty() ? RGBColor{} : gradient.ColorList().front().ColorRGB(), 0);
    ramp.stops.sort();
    if (ramp.stops.front().Percent() < 0 || ramp.stops.back().Percent() > 1)
        ramp.notes.emplace_back("stops beyond the ramp's ends are cut off");
    clipFront(ramp.stops, 0, [](double a, double b) { return a < b; });
    ramp.stops.reverse();
    clipFront(ramp.stops, 1, [](double a, double b) { return a > b; });
    ramp.stops.reverse();
    return ramp;
}

} // namespace easel::exchange
