#include "easel/svg/read/PaintServers.h"

#include "easel/svg/read/ReferenceChain.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/style/ComputedStyle.h"
#include "easel/svg/text/RecordText.h"
#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Transform.h"

#include <algorithm>
#include <string>

namespace easel::svg {

using drawing::ColorPaint;
using drawing::RampStop;
using drawing::Spread;

namespace {

bool isGradient(std::string_view name) {
    return name == "linearGradient" || name == "radialGradient";
}

std::optional<Spread> parseSpread(std::string_view text) {
    if (text == "reflect")
        return Spread::Reflect;
    if (text == "repeat")
        return Spread::Repeat;
    return Spread::Pad;
}

// What the nearest element of one kind says: geometry is not taken over from the other one.
const char* geometryOf(const ReferenceChain& chain, const char* name) {
    for (const pugi::xml_node element : chain.elements())
        if (std::string_view(element.name()) == chain.elements().front().name())
            if (const pugi::xml_attribute found = element.attribute(name))
                return found.value();
    return "";
}

} // namespace

const GradientElement* PaintServers::gradient(std::string_view id) {
    const auto number = idNumber(id);
    if (!number)
        return nullptr;
    const GradientElement*& known = byIdNumber_[*number];
    const pugi::xml_node element = tree_.withIds()[*number].element;
    if (!known && isGradient(tree_.svgName(element)))
        known = &read(element);
    return known;
}

// Shapes mostly ask for gradients in the order of the file. Trying the next one first spares large drawings a
// look into the table of ids, which waits for memory.
std::optional<std::size_t> PaintServers::idNumber(std::string_view id) {
    const auto& withIds = tree_.withIds();
    const bool isNext = nextId_ < withIds.size() && withIds[nextId_].id == id;
    const auto number = isNext ? std::optional(nextId_) : tree_.idNumber(id);
    if (number)
        nextId_ = *number + 1;
    return number;
}

const GradientElement& PaintServers::read(pugi::xml_node element) {
    const ReferenceChain chain(tree_, element, isGradient);
    circular_ = circular_ || chain.circular();
    linearLight_ =
        linearLight_ || equalIgnoringCase(cascade_.of(element)[Property::ColorInterpolation], "linearRGB");
    GradientElement& gradient = read_.emplace_back(&memory_);
    if (chain.attribute("gradientUnits") == "userSpaceOnUse")
        gradient.units = GradientUnits::UserSpaceOnUse;
    gradient.transform = parseTransform(chain.attribute("gradientTransform")).value_or(drawing::Affine());
    gradient.spread = parseSpread(chain.attribute("spreadMethod")).value_or(Spread::Pad);
    const auto text = [&chain](const char* name) { return geometryOf(chain, name); };
    if (tree_.svgName(element) == "linearGradient")
        gradient.geometry = LineTexts{text("x1"), text("y1"), text("x2"), text("y2")};
    else
        gradient.geometry =
            CircleTexts{text("cx"), text("cy"), text("r"), text("fx"), text("fy"), text("fr")};
    for (const pugi::xml_node link : chain.elements()) {
        readStops(link, gradient.stops);
        if (!gradient.stops.empty())
            break;
    }
    gradient.own = {element.attribute(kRecordAttribute).value(), element.attribute(kOpacityAttribute).value(),
                    element.attribute(kEllipseAttribute).value()};
    return gradient;
}

void PaintServers::readStops(pugi::xml_node element, std::pmr::vector<RampStop>& stops) const {
    const auto isStop = [this](pugi::xml_node child) { return tree_.svgName(child) == "stop"; };
    stops.reserve(static_cast<std::size_t>(std::count_if(element.begin(), element.end(), isStop)));
    double last = 0;
    for (const pugi::xml_node child : element.children()) {
        if (!isStop(child))
            continue;
        const StatedStyle style = cascade_.of(child);
        last = std::max(last, parseOpacity(child.attribute("offset").value(), 0));
        const std::string_view stated = style[Property::StopColor];
        const bool current = equalIgnoringCase(stated, "currentcolor");
        const ColorPaint color = current ? colorAt(child) : parseColor(stated).value_or(ColorPaint{});
        stops.push_back({last, color.color, color.opacity * parseOpacity(style[Property::StopOpacity], 1)});
    }
}

ColorPaint PaintServers::colorAt(pugi::xml_node element) const {
    for (; element.type() == pugi::node_element; element = element.parent()) {
        const std::string stated(cascade_.of(element)[Property::Color]);
        if (const auto color = parseColor(stated); color && !equalIgnoringCase(stated, "currentcolor"))
            return *color;
    }
    return {};
}

} // namespace easel::svg
