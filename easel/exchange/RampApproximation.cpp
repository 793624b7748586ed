// Divides a curve until its pieces are straight enough.
#include "easel/exchange/RampApproximation.h"

#include <algorithm>
#include <cmath>

namespace easel::exchange {
namespace {

// Less than half a level, since what lies between the points looked at may be off by a little more.
constexpr double kTolerance = 0.4 / 255;
constexpr int kDeepest = 18;
constexpr int kPointsLookedAt = 12;

double distance(const CurveColor& a, const CurveColor& b) {
    return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

class Divider {
  public:
    Divider(std::list<CGradientColor>& stops, double from, double to, const ColorCurve& curve)
        : stops_(stops), from_(from), to_(to), curve_(curve) {}

    void divide(double first, double last, int depth) {
        if (depth < kDeepest && !isStraight(first, last)) {
            const double middle = (first + last) / 2;
            divide(first, middle, depth + 1);
            divide(middle, last, depth + 1);
            return;
        }
        add(last);
    }
    void add(double part) { addStop(stops_, std::lerp(from_, to_, part), rounded(curve_(part))); }

  private:
    bool isStraight(double first, double last) const {
        const auto a = curve_(first);
        const auto b = curve_(last);
        for (int i = 1; i < kPointsLookedAt; ++i) {
            const double part = static_cast<double>(i) / kPointsLookedAt;
            if (distance(curve_(std::lerp(first, last, part)), between(a, b, part)) > kTolerance)
                return false;
        }
        return true;
    }

    std::list<CGradientColor>& stops_;
    double from_;
    double to_;
    const ColorCurve& curve_;
};

} // namespace

CurveColor between(const CurveColor& a, const CurveColor& b, double part) {
    return {std::lerp(a.red, b.red, part), std::lerp(a.green, b.green, part),
            std::lerp(a.blue, b.blue, part)};
}

RGBColor rounded(const CurveColor& color) {
    const auto channel = [](double value) {
        return static_cast<std::uint16_t>(std::lround(std::clamp(value, 0.0, 1.0) * 65535));
    };
    return {channel(color.red), channel(color.green), channel(color.blue)};
}

void addStop(std::list<CGradientColor>& stops, double position, const RGBColor& color) {
    if (stops.empty() || stops.back().Percent() != position || !(stops.back().ColorRGB() == color))
        stops.emplace_back(color, position);
}

void addCurve(std::list<CGradientColor>& stops, double from, double to, const ColorCurve& curve) {
    Divider divider(stops, from, to, curve);
    divider.add(0);
    divider.divide(0, 1, 0);
}

double easedBy(double part, double middle) {
    constexpr double kNoMiddle = 1e-10;
    if (middle < kNoMiddle)
        return 1;
    if (middle > 1 - kNoMiddle)
        return 0;
    return std::pow(part, std::log(0.5) / std::log(middle));
}

} // namespace easel::exchange
