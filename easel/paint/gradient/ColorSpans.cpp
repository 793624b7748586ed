// Laying out of ramps, once for pad and period by period for repeat and reflect.
#include "easel/paint/gradient/ColorSpans.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace easel::paint {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kMostColorSpans = 20000;
// So far out the periods themselves would be inexact.
constexpr double kFarthestPeriod = 1e6;
// Color spans shorter than this (in the parameter) count as sharp.
constexpr double kSharpReach = 1e-5;
// In levels; smaller than any rounding can show.
constexpr double kVisibleJump = 1e-6;

BlendColor blendColorOf(const Channels& color, const Channels& slope) {
    const auto narrow = [](double value) { return static_cast<float>(value); };
    return {{narrow(color[0]), narrow(color[1]), narrow(color[2]), 255},
            {narrow(slope[0]), narrow(slope[1]), narrow(slope[2]), 0},
            narrow(color[3]),
            narrow(slope[3])};
}

Channels channelsOf(const drawing::RampColor& color) {
    return {color.blue, color.green, color.red, color.opacity};
}

} // namespace

Channels ColorSpan::at(double parameter) const {
    const double distance = distanceTo(parameter);
    Channels result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = color[i] + slope[i] * distance;
    return result;
}

ColorSpans::Outcome ColorSpans::layOut(const drawing::Ramp& ramp, drawing::Spread spread, double lowest,
                                       double highest) {
    colorSpans_.clear();
    if (spread == drawing::Spread::Pad) {
        addPart(ramp, -kInfinity, kInfinity, 0, Direction::Forward);
        return Outcome::Ready;
    }
    const double first = std::floor(lowest);
    const double last = std::floor(highest);
    const double perPeriod = static_cast<double>(ramp.stops().size()) + 2;
    if (!((last - first + 1) * perPeriod < kMostColorSpans) || !(std::abs(first) < kFarthestPeriod))
        return Outcome::TooMany;
    for (double period = first; period <= last; ++period) {
        if (spread == drawing::Spread::Reflect && std::fmod(period, 2) != 0)
            addPart(ramp, 0, 1, period + 1, Direction::Backward);
        else
            addPart(ramp, 0, 1, period, Direction::Forward);
    }
    colorSpans_.front().start = -kInfinity;
    return Outcome::Ready;
}

void ColorSpans::layOut(const drawing::RampColor& color) {
    colorSpans_.clear();
    add(-kInfinity, color);
}

std::size_t ColorSpans::find(double parameter) const {
    const auto after =
        std::upper_bound(colorSpans_.begin() + 1, colorSpans_.end(), parameter,
                         [](double value, const ColorSpan& colorSpan) { return value < colorSpan.start; });
    return static_cast<std::size_t>(after - colorSpans_.begin()) - 1;
}

void ColorSpans::addPart(const drawing::Ramp& ramp, double from, double to, double offset,
                         Direction direction) {
    const std::vector<drawing::RampStop>& stops = ramp.stops();
    drawing::RampStop before = stops.front();
    drawing::RampStop behind = stops.back();
    before.position = -kInfinity;
    behind.position = kInfinity;
    const auto knot = [&](std::size_t i) -> const drawing::RampStop& {
        return i == 0 ? before : i == stops.size() + 1 ? behind : stops[i - 1];
    };
    for (std::size_t i = 0; i <= stops.size(); ++i) {
        const std::size_t pair = direction == Direction::Forward ? i : stops.size() - i;
        const drawing::RampStop& low = knot(pair);
        const drawing::RampStop& high = knot(pair + 1);
        if (low.position == high.position || high.position <= from || low.position >= to)
            continue;
        if (direction == Direction::Forward)
            addForward(low, high, from, offset);
        else
            addBackward(low, high, to, offset);
    }
}

// A stop at infinity is never reached, so its neighbor's color holds.
void ColorSpans::addForward(const drawing::RampStop& low, const drawing::RampStop& high, double from,
                            double offset) {
    const double start = offset + std::max(low.position, from);
    if (std::isinf(low.position) || std::isinf(high.position))
        return add(start, drawing::colorOf(std::isinf(low.position) ? high : low));
    add(start, offset + low.position, high.position - low.position, drawing::colorOf(low),
        drawing::colorOf(high));
}

void ColorSpans::addBackward(const drawing::RampStop& low, const drawing::RampStop& high, double to,
                             double offset) {
    // The stop itself has the color that follows it on the ramp, which here comes first.
    const double start = std::nextafter(offset - std::min(high.position, to), kInfinity);
    if (std::isinf(low.position) || std::isinf(high.position))
        return add(start, drawing::colorOf(std::isinf(low.position) ? high : low));
    add(start, offset - high.position, high.position - low.position, drawing::colorOf(high),
        drawing::colorOf(low));
}

void ColorSpans::add(double start, const drawing::RampColor& color) {
    append({start, std::isinf(start) ? 0 : start, 0, channelsOf(color), {}, false, {}, 0});
}

void ColorSpans::add(double start, double anchor, double reach, const drawing::RampColor& from,
                     const drawing::RampColor& to) {
    const Channels low = channelsOf(from);
    const Channels high = channelsOf(to);
    if (low == high)
        return add(start, from);
    ColorSpan colorSpan{start, anchor, reach, low, {}, reach < kSharpReach, {}, 0};
    for (std::size_t i = 0; i < low.size(); ++i)
        colorSpan.slope[i] = (high[i] - low[i]) / reach;
    append(colorSpan);
}

void ColorSpans::append(ColorSpan colorSpan) {
    if (!colorSpans_.empty()) {
        const ColorSpan& previous = colorSpans_.back();
        const Channels left = previous.at(colorSpan.start);
        const Channels right = colorSpan.at(colorSpan.start);
        colorSpan.sharp |= !previous.flat() && previous.reach < kSharpReach;
        for (std::size_t i = 0; i < left.size(); ++i)
            colorSpan.sharp |= std::abs(left[i] - right[i]) > kVisibleJump;
    }
    colorSpan.blend = blendColorOf(colorSpan.color, colorSpan.slope);
    for (std::size_t i = 0; i < 3; ++i)
        colorSpan.steepest = std::max(colorSpan.steepest, std::abs(colorSpan.slope[i]));
    colorSpans_.push_back(colorSpan);
}

} // namespace easel::paint
