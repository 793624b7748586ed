#include "easel/svg/write/StyleText.h"

#include "easel/svg/text/Number.h"
#include "easel/svg/write/ElementText.h"

namespace easel::svg {

using drawing::LineCap;
using drawing::LineJoin;

namespace {

constexpr std::string_view kAssumedJoin = "miter";
constexpr std::string_view kAssumedCap = "butt";

std::string_view joinText(LineJoin join) {
    return join == LineJoin::Round ? "round" : join == LineJoin::Bevel ? "bevel" : kAssumedJoin;
}

std::string_view capText(LineCap cap) {
    return cap == LineCap::Round ? "round" : cap == LineCap::Square ? "square" : kAssumedCap;
}

std::string dashText(const std::vector<double>& dashes) {
    std::string text;
    for (const double dash : dashes)
        text.append(text.empty() ? "" : " ").append(numberText(dash));
    return text;
}

} // namespace

std::string ruleText(std::string_view name, drawing::FillRule rule) {
    return rule == drawing::FillRule::EvenOdd ? attribute(name, "evenodd") : std::string();
}

std::string paintOrderText(drawing::PaintStep first) {
    return first == drawing::PaintStep::Stroke ? attribute("paint-order", "stroke") : std::string();
}

std::string penText(const drawing::Stroke& stroke, Defaults defaults) {
    const bool all = defaults == Defaults::Stated;
    const auto stated = [all](const auto& assumed, std::string_view name, const auto& value) {
        return all ? attribute(name, value) : attributeUnless(assumed, name, value);
    };
    std::string text = stated(kAssumedJoin, "stroke-linejoin", joinText(stroke.join)) +
                       stated(kAssumedCap, "stroke-linecap", capText(stroke.cap)) +
                       stated(4, "stroke-miterlimit", stroke.miterLimit) +
                       attribute("stroke-dasharray", dashText(stroke.dashes));
    // Where nothing is dashed there is no default to state.
    if (!all || !stroke.dashes.empty())
        text += stated(0, "stroke-dashoffset", stroke.dashOffset);
    return text;
}

} // namespace easel::svg
