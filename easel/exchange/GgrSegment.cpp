// How a GIMP gradient blends within a segment.
#include "easel/exchange/GgrSegment.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace easel::exchange {
namespace {

constexpr double kAtTheEdge = 1e-10;

// The middle, as a part of the segment's length.
double relativeMiddle(const GgrSegment& segment) {
    const double length = segment.right - segment.left;
    return length < kAtTheEdge ? 0.5 : (segment.middle - segment.left) / length;
}

double straightFactor(double part, double middle) {
    if (part <= middle)
        return middle < kAtTheEdge ? 0 : 0.5 * part / middle;
    const double rest = 1 - middle;
    return rest < kAtTheEdge ? 1 : 0.5 + 0.5 * (part - middle) / rest;
}

double factorOf(GgrBlending blending, double part, double middle) {
    const double straight = straightFactor(part, middle);
    switch (blending) {
    case GgrBlending::Linear:
        return straight;
    case GgrBlending::Curved:
        return easedBy(part, middle);
    case GgrBlending::Sine:
        return (std::sin(std::numbers::pi * (straight - 0.5)) + 1) / 2;
    case GgrBlending::SphereIncreasing:
        return std::sqrt(1 - (straight - 1) * (straight - 1));
    case GgrBlending::SphereDecreasing:
        return 1 - std::sqrt(1 - straight * straight);
    case GgrBlending::Step:
        return part >= middle ? 1 : 0;
    }
    return straight;
}

struct Hsv {
    double hue; // 0 to 1
    double saturation;
    double value;
};

Hsv toHsv(const CurveColor& color) {
    const double highest = std::max({color.red, color.green, color.blue});
    const double spread = highest - std::min({color.red, color.green, color.blue});
    if (spread <= 0)
        return {0, 0, highest};
    double sixths = 0;
    if (highest == color.red)
        sixths = (color.green - color.blue) / spread;
    else if (highest == color.green)
        sixths = 2 + (color.blue - color.red) / spread;
    else
        sixths = 4 + (color.red - color.green) / spread;
    return {sixths < 0 ? sixths / 6 + 1 : sixths / 6, spread / highest, highest};
}

CurveColor fromHsv(const Hsv& color) {
    const auto channel = [&](double offset) {
        const double sixths = std::fmod(offset + color.hue * 6, 6);
        return color.value * (1 - color.saturation * std::clamp(std::min(sixths, 4 - sixths), 0.0, 1.0));
    };
    return {channel(5), channel(3), channel(1)};
}

// Counter-clockwise hues grow, clockwise ones shrink, each past the end of the circle if need be.
double hueBetween(double from, double to, double factor, GgrColoring coloring) {
    const bool grows = coloring == GgrColoring::HsvCounterClockwise;
    double turn = to - from;
    if (grows && turn <= 0)
        turn += 1;
    if (!grows && turn >= 0)
        turn -= 1;
    const double hue = from + turn * factor;
    return hue - std::floor(hue);
}

} // namespace

CurveColor GgrSegment::colorAt(double part) const {
    const double factor = factorOf(blending, part, relativeMiddle(*this));
    if (coloring == GgrColoring::Rgb)
        return {std::lerp(leftColor.red, rightColor.red, factor),
                std::lerp(leftColor.green, rightColor.green, factor),
                std::lerp(leftColor.blue, rightColor.blue, factor)};
    const Hsv a = toHsv(leftColor);
    const Hsv b = toHsv(rightColor);
    return fromHsv({hueBetween(a.hue, b.hue, factor, coloring), std::lerp(a.saturation, b.saturation, factor),
                    std::lerp(a.value, b.value, factor)});
}

bool GgrSegment::isStraight() const {
    return blending == GgrBlending::Linear && coloring == GgrColoring::Rgb;
}

} // namespace easel::exchange
