#include "easel/svg/write/GradientElement.h"

#include "easel/svg/style/Color.h"
#include "easel/svg/write/ElementText.h"

namespace easel::svg {

using drawing::GradientGeometry;
using drawing::LinearGeometry;
using drawing::RadialGeometry;
using drawing::Spread;

std::string_view gradientElementName(const GradientGeometry& geometry) {
    return std::holds_alternative<LinearGeometry>(geometry) ? "linearGradient" : "radialGradient";
}

std::string geometryText(const GradientGeometry& geometry) {
    if (const auto* const line = std::get_if<LinearGeometry>(&geometry))
        return attribute("x1", line->start.x) + attribute("y1", line->start.y) +
               attribute("x2", line->end.x) + attribute("y2", line->end.y);
    const auto& circles = std::get<RadialGeometry>(geometry);
    std::string text = attribute("cx", circles.centre.x) + attribute("cy", circles.centre.y) +
                       attribute("r", circles.radius);
    if (circles.focus != circles.centre)
        text += attribute("fx", circles.focus.x) + attribute("fy", circles.focus.y);
    return text + attributeUnless(0, "fr", circles.focusRadius);
}

std::string spreadText(Spread spread) {
    if (spread == Spread::Pad)
        return {};
    return attribute("spreadMethod", spread == Spread::Reflect ? "reflect" : "repeat");
}

std::string stopText(const drawing::RampStop& stop, std::string_view prefix) {
    std::string text = "<";
    return text.append(prefix).append("stop") + attribute("offset", stop.position) +
           attribute("stop-color", colorText(stop.color)) + attributeUnless(1, "stop-opacity", stop.opacity) +
           "/>";
}

} // namespace easel::svg
