#include "easel/svg/write/GradientText.h"

#include "easel/drawing/ShapeGradient.h"
#include "easel/drawing/StandardGradient.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/text/RecordText.h"
#include "easel/svg/write/ElementText.h"
#include "easel/svg/write/GradientElement.h"

#include <algorithm>
#include <charconv>

namespace easel::svg {

using drawing::Affine;
using drawing::ColorPaint;
using drawing::Gradient;
using drawing::LinearGeometry;
using drawing::Object;
using drawing::Ramp;
using drawing::RampStop;
using drawing::Spread;

namespace {

constexpr std::string_view kNameBegin = "easel-gradient-";

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
    const std::string name = prefix_ + std::string(gradientElementName(gradient.geometry));
    const std::string id = std::string(kNameBegin) + std::to_string(++lastNumber_);
    std::string text = '<' + name + " id=\"" + id + "\" gradientUnits=\"userSpaceOnUse\"" +
                       geometryText(gradient.geometry) +
                       transformAttribute("gradientTransform", toUnits * gradient.toDrawing) +
                       spreadText(gradient.spread) + ownAttributes + '>';
    for (const RampStop& stop : gradient.ramp.stops())
        text += stopText(stop, prefix_);
    elements_.push_back(text + "</" + name + '>');
    return referenceTo(id);
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

std::string strokeText(const Object& object, GradientBlock& gradients) {
    const drawing::Paint& paint = styleOf(object).stroke.paint;
    if (const Gradient* const gradient = drawing::gradientIn(paint))
        return gradients.addForeign(*gradient, object);
    const auto* const color = std::get_if<ColorPaint>(&paint);
    return color ? colorText(color->color) : "none";
}

} // namespace easel::svg
