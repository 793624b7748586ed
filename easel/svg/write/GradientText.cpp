#include "easel/svg/write/GradientText.h"

#include "easel/drawing/ShapeGradient.h"
#include "easel/drawing/StandardGradient.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/text/Number.h"
#include "easel/svg/text/RecordText.h"
#include "easel/svg/text/Transform.h"
#include "easel/svg/write/ElementText.h"

#include <algorithm>
#include <charconv>

namespace easel::svg {

using drawing::Affine;
using drawing::ColorPaint;
using drawing::Gradient;
using drawing::LinearGeometry;
using drawing::Object;
using drawing::RadialGeometry;
using drawing::Ramp;
using drawing::RampStop;
using drawing::Spread;

namespace {

constexpr std::string_view kNameBegin = "easel-gradient-";

std::string stopText(const RampStop& stop, const std::string& prefix) {
    std::string text = '<' + prefix + "stop" + attribute("offset", stop.position) +
                       attribute("stop-color", colorText(stop.color));
    return text + attributeUnless(1, "stop-opacity", stop.opacity) + "/>";
}

// The colors alone, for a record whose geometry on its object is not finite.
Gradient colorsOf(const CGradientData& record) {
    std::vector<RampStop> stops;
    for (const CGradientColor& stop : record.ColorList()) {
        const RGBColor color = stop.ColorRGB();
        const double offset = stop.Percent() >= 0 ? std::min(stop.Percent(), 1.0) : 0;
        stops.push_back({offset, {color.red, color.green, color.blue}, 1});
    }
    return {LinearGeometry{{0, 0}, {1, 0}}, {}, Spread::Pad, Ramp(std::move(stops))};
}

// Record and remainder as they are, beside what any viewer shows.
std::string ownAttributes(const CGradientData& record, const drawing::Remainder* remainder) {
    std::string text = attribute(kRecordAttribute, recordText(record));
    if (remainder && !remainder->opacity.empty())
        text += attribute(kOpacityAttribute, opacityText(*remainder));
    if (remainder && remainder->ellipse)
        text += attribute(kEllipseAttribute, ellipseText(*remainder));
    return text;
}

} // namespace

std::string geometryText(const std::variant<LinearGeometry, RadialGeometry>& geometry) {
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

GradientBlock::GradientBlock(std::string_view text, std::string prefix) : prefix_(std::move(prefix)) {
    for (std::size_t at = text.find(kNameBegin); at != std::string_view::npos;
         at = text.find(kNameBegin, at)) {
        at += kNameBegin.size();
        // A number that does not fit is not one of ours.
        std::uint32_t number = 0;
        std::from_chars(text.data() + at, text.data() + text.size(), number);
        lastNumber_ = std::max<std::size_t>(lastNumber_, number);
    }
}

std::string GradientBlock::addRecord(const Object& object) {
    const CGradientData& record = drawing::gradientIn(object.gradient)->GetGradientData();
    const drawing::Remainder* const remainder = object.remainder.get();
    const auto standard = drawing::standardGradient(record, remainder, object.outline);
    return addElement(standard ? *standard : colorsOf(record), unitsOf(object).inverse(),
                      ownAttributes(record, remainder));
}

std::string GradientBlock::addForeign(const Gradient& gradient, const Object& object) {
    return addElement(gradient, unitsOf(object).inverse(), {});
}

std::string GradientBlock::addElement(const Gradient& gradient, const Affine& toUnits,
                                      const std::string& ownAttributes) {
    const bool isLinear = std::holds_alternative<LinearGeometry>(gradient.geometry);
    const std::string name = prefix_ + (isLinear ? "linearGradient" : "radialGradient");
    const std::string id = std::string(kNameBegin) + std::to_string(++lastNumber_);
    std::string text =
        '<' + name + " id=\"" + id + "\" gradientUnits=\"userSpaceOnUse\"" + geometryText(gradient.geometry);
    const Affine transform = toUnits * gradient.toDrawing;
    if (transform != Affine())
        text += " gradientTransform=\"" + transformText(transform) + '"';
    text += spreadText(gradient.spread) + ownAttributes + '>';
    for (const RampStop& stop : gradient.ramp.stops())
        text += stopText(stop, prefix_);
    elements_.push_back(text + "</" + name + '>');
    return "url(#" + id + ')';
}

std::string GradientBlock::text(std::string_view lineBreak) const {
    std::string result;
    for (const std::string& element : elements_) {
        result += lineBreak;
        result += element;
    }
    return result;
}

std::string fillText(const Object& object, GradientBlock& gradients) {
    if (object.showsGradient())
        return gradients.addRecord(object);
    const drawing::Paint fill = drawing::plainFillOf(object);
    if (std::holds_alternative<drawing::NoPaint>(fill))
        return "none";
    if (const auto* const color = std::get_if<ColorPaint>(&fill))
        return colorText(color->color);
    return {};
}

} // namespace easel::svg
