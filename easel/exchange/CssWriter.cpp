// Writing a CSS gradient.
#include "easel/exchange/CssGradient.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/text/Number.h"

#include <cmath>

namespace easel::exchange {
namespace {

std::string percentText(double fraction) {
    return svg::numberText(fraction * 100) + "%";
}

std::string directionText(const CGradientData& gradient, std::vector<std::string>& notes) {
    if (!std::isfinite(gradient.Angle())) {
        notes.emplace_back("its angle is no number; it is taken as 0");
        return "90deg";
    }
    const double degrees = std::fmod(90 - static_cast<double>(gradient.Angle()), 360);
    return svg::numberText(static_cast<float>(degrees < 0 ? degrees + 360 : degrees)) + "deg";
}

std::string circleText(const CGradientData& gradient, std::vector<std::string>& notes) {
    if (!(gradient.Start() == gradient.End()))
        notes.emplace_back("CSS circles have one center: the point where the first color is, is left out");
    const auto center = gradient.End();
    if (!std::isfinite(center.h) || !std::isfinite(center.v)) {
        notes.emplace_back("its center is no number; it is put in the middle");
        return "circle farthest-corner";
    }
    return "circle farthest-corner at " + percentText(center.h) + " " + percentText(center.v);
}

} // namespace

ExportedGradient writeCss(const CGradientData& gradient) {
    ExportedGradient result;
    const bool isLinear = gradient.Type() == kLinearGradient;
    std::string text = isLinear ? "linear-gradient(" + directionText(gradient, result.notes)
                                : "radial-gradient(" + circleText(gradient, result.notes);
    bool isWhole = true;
    for (const auto& stop : gradient.ColorList()) {
        isWhole &= std::isfinite(stop.Percent());
        if (!std::isfinite(stop.Percent()))
            continue;
        const auto color = stop.ColorRGB();
        text +=
            ", " + svg::colorText({color.red, color.green, color.blue}) + " " + percentText(stop.Percent());
    }
    if (!isWhole)
        result.notes.emplace_back("stops whose position is no number are left out");
    result.text = text + ")\n";
    return result;
}

} // namespace easel::exchange
