// Reads direction and centre off what is drawn.
#include "easel/runtime/PreviewGestures.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace easel::runtime {

namespace {

constexpr double kRadiansOfDegree = std::numbers::pi / 180;
// The mouse goes by whole pixels, so the line is as long as places in a dialog allow: it is then less than
// two thousandths of a degree off.
constexpr double kLineLength = 30000;
// Angles that differ by less are one.
constexpr double kSameAngle = 0.01;

} // namespace

std::optional<double> shownAngle(const DialogItem& item) {
    const auto& shown = item.content.gradient;
    if (!shown || shown->record.Type() != kLinearGradient)
        return std::nullopt;
    const TPoint<double> from = shown->record.Start();
    const TPoint<double> to = shown->record.End();
    return std::atan2(from.v - to.v, to.h - from.h) / kRadiansOfDegree;
}

std::optional<drawing::Point> shownCentre(const DialogItem& item) {
    const auto& shown = item.content.gradient;
    if (!shown || shown->record.Type() == kLinearGradient)
        return std::nullopt;
    return drawing::Point{shown->record.End().h, shown->record.End().v};
}

MouseGesture turnTo(const DialogItem& item, double degrees) {
    const paint::PixelPoint middle = item.bounds.middle();
    const auto h = static_cast<int>(std::lround(kLineLength * std::cos(degrees * kRadiansOfDegree)));
    const auto v = static_cast<int>(std::lround(-kLineLength * std::sin(degrees * kRadiansOfDegree)));
    return {middle, {{middle.h + h, middle.v + v}}};
}

double nextAngle(double angle, double step) {
    const double steps = angle / step;
    return (std::floor(steps + kSameAngle / std::abs(step)) + 1) * step;
}

MouseGesture moveCentreTo(const DialogItem& item, paint::PixelPoint centre) {
    const paint::PixelPoint within{std::clamp(centre.h, item.bounds.left, item.bounds.right - 1),
                                   std::clamp(centre.v, item.bounds.top, item.bounds.bottom - 1)};
    return {within, {centre}};
}

} // namespace easel::runtime
