#include "easel/svg/style/PropertyGrammar.h"

#include "easel/drawing/BlendMode.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/style/ComputedStyle.h"
#include "easel/svg/style/StyleValues.h"
#include "easel/svg/style/TextStyle.h"
#include "easel/svg/style/Words.h"
#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Transform.h"

namespace easel::svg {

namespace {

// Which texts are lengths does not depend on what they are measured against.
constexpr LengthContext kAnyLengths{1, 1};

bool isLength(std::string_view text) {
    return parseLength(text, kAnyLengths, Axis::Other).has_value();
}

bool isSize(std::string_view text) {
    return parseSize(text, kAnyLengths, Axis::Other).has_value();
}

// What has arguments is not looked into.
bool isNoneOrFunction(std::string_view text) {
    return equalIgnoringCase(text, "none") || text.find('(') != std::string_view::npos;
}

bool isDisplay(std::string_view text) {
    const std::string_view first = text.substr(0, text.find(' '));
    return findIgnoringCase(first, "inline-") == 0 || findIgnoringCase(first, "table-") == 0 ||
           isOneOf(first, {"none", "inline", "block", "list-item", "run-in", "compact", "marker", "table",
                           "contents", "flex", "grid", "flow", "flow-root", "ruby"});
}

bool isBlendMode(std::string_view text) {
    return drawing::blendModeFromName(text::lowerCase(text)) ||
           isOneOf(text, {"plus-lighter", "plus-darker"});
}

bool isClipBox(std::string_view text) {
    return isOneOf(text, {"margin-box", "border-box", "padding-box", "content-box", "fill-box", "stroke-box",
                          "view-box"});
}

bool isShapeValue(Property property, std::string_view text) {
    switch (property) {
    case Property::Cx:
    case Property::Cy:
    case Property::X:
    case Property::Y:
    case Property::StrokeDashoffset:
        return isLength(text);
    case Property::R:
    case Property::StrokeWidth:
        return isSize(text);
    case Property::Rx:
    case Property::Ry:
    case Property::Width:
    case Property::Height:
        return isSize(text) || equalIgnoringCase(text, "auto");
    case Property::D:
        return isNoneOrFunction(text);
    case Property::Transform:
        return parseTransform(text).has_value();
    case Property::TransformBox:
        return isOneOf(text, {"content-box", "border-box", "fill-box", "stroke-box", "view-box"});
    default:
        return true;
    }
}

bool isPaintValue(Property property, std::string_view text) {
    switch (property) {
    case Property::Fill:
    case Property::Stroke:
        return parsePaint(text).has_value();
    case Property::Color:
    case Property::FloodColor:
    case Property::LightingColor:
    case Property::StopColor:
        return parseColor(text).has_value();
    case Property::FillOpacity:
    case Property::FloodOpacity:
    case Property::Opacity:
    case Property::StopOpacity:
    case Property::StrokeOpacity:
        return parseFraction(text).has_value();
    case Property::FillRule:
    case Property::ClipRule:
        return parseRule(text).has_value();
    case Property::StrokeLinejoin:
        return parseJoin(text).has_value();
    case Property::StrokeLinecap:
        return parseCap(text).has_value();
    case Property::StrokeMiterlimit:
        return parseMiterLimit(text).has_value();
    case Property::StrokeDasharray:
        return parseDashes(text, kAnyLengths).has_value();
    case Property::PaintOrder:
        return parsePaintOrder(text).has_value();
    default:
        return isShapeValue(property, text);
    }
}

bool isEffectValue(Property property, std::string_view text) {
    switch (property) {
    case Property::Visibility:
        return parseVisibility(text).has_value();
    case Property::ImageRendering:
        return parseSmoothness(text).has_value();
    case Property::Display:
        return isDisplay(text);
    case Property::Overflow:
        return isOneOf(text.substr(0, text.find(' ')), {"visible", "hidden", "clip", "scroll", "auto"});
    case Property::Isolation:
        return isOneOf(text, {"auto", "isolate"});
    case Property::MixBlendMode:
        return isBlendMode(text);
    case Property::MaskType:
        return isOneOf(text, {"luminance", "alpha"});
    case Property::ColorInterpolation:
    case Property::ColorInterpolationFilters:
        return isOneOf(text, {"auto", "sRGB", "linearRGB"});
    case Property::VectorEffect:
        return isOneOf(text.substr(0, text.find(' ')),
                       {"none", "non-scaling-stroke", "non-scaling-size", "non-rotation", "fixed-position"});
    case Property::ClipPath:
        return isNoneOrFunction(text) || isClipBox(text);
    case Property::Filter:
    case Property::Marker:
    case Property::MarkerEnd:
    case Property::MarkerMid:
    case Property::MarkerStart:
    case Property::Mask:
        return isNoneOrFunction(text);
    case Property::FontSize:
        return parseFontSize(text, kAnyLengths).has_value();
    default:
        return isPaintValue(property, text);
    }
}

} // namespace

bool isValueOf(Property property, std::string_view text) {
    if (asksForCustomProperty(text) ||
        isOneOf(text, {"inherit", "initial", "unset", "revert", "revert-layer"}))
        return true;
    return property < kFirstOfText ? isEffectValue(property, text) : isTextValue(property, text);
}

void declare(StatedStyle& style, const Declaration& declaration) {
    const auto property = propertyFromDeclaration(declaration.name);
    if (!property)
        return;
    // A value that is none changes nothing where nothing else is stated, and is looked at only where it
    // could.
    const bool beats = !style[*property].empty() || declaration.importance == Importance::Important;
    if (!beats || isValueOf(*property, declaration.value))
        style.set(*property, declaration.value, declaration.importance);
}

} // namespace easel::svg
