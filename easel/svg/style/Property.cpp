#include "easel/svg/style/Property.h"

#include "easel/svg/style/FontShorthand.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <span>
#include <unordered_map>

namespace easel::svg {

namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, kPropertyCount> kNames = {"clip-path",
                                                                 "clip-rule",
                                                                 "color",
                                                                 "color-interpolation",
                                                                 "color-interpolation-filters",
                                                                 "cx",
                                                                 "cy",
                                                                 "d",
                                                                 "display",
                                                                 "fill",
                                                                 "fill-opacity",
                                                                 "fill-rule",
                                                                 "filter",
                                                                 "flood-color",
                                                                 "flood-opacity",
                                                                 "font-size",
                                                                 "height",
                                                                 "image-rendering",
                                                                 "isolation",
                                                                 "lighting-color",
                                                                 "marker",
                                                                 "marker-end",
                                                                 "marker-mid",
                                                                 "marker-start",
                                                                 "mask",
                                                                 "mask-type",
                                                                 "mix-blend-mode",
                                                                 "opacity",
                                                                 "overflow",
                                                                 "paint-order",
                                                                 "r",
                                                                 "rx",
                                                                 "ry",
                                                                 "stop-color",
                                                                 "stop-opacity",
                                                                 "stroke",
                                                                 "stroke-dasharray",
                                                                 "stroke-dashoffset",
                                                                 "stroke-linecap",
                                                                 "stroke-linejoin",
                                                                 "stroke-miterlimit",
                                                                 "stroke-opacity",
                                                                 "stroke-width",
                                                                 "transform",
                                                                 "transform-box",
                                                                 "transform-origin",
                                                                 "vector-effect",
                                                                 "visibility",
                                                                 "width",
                                                                 "x",
                                                                 "y",
                                                                 "alignment-baseline",
                                                                 "baseline-shift",
                                                                 "direction",
                                                                 "dominant-baseline",
                                                                 "font",
                                                                 "font-family",
                                                                 "font-stretch",
                                                                 "font-style",
                                                                 "font-variant",
                                                                 "font-variation-settings",
                                                                 "font-weight",
                                                                 "glyph-orientation-vertical",
                                                                 "letter-spacing",
                                                                 "text-anchor",
                                                                 "text-decoration",
                                                                 "text-decoration-line",
                                                                 "text-orientation",
                                                                 "text-transform",
                                                                 "unicode-bidi",
                                                                 "white-space",
                                                                 "word-spacing",
                                                                 "writing-mode"};

} // namespace

std::optional<Property> propertyFromName(std::string_view name) {
    static const auto kByName = [] {
        std::unordered_map<std::string_view, Property> map;
        for (std::size_t i = 0; i < kNames.size(); ++i)
            map.emplace(kNames[i], static_cast<Property>(i));
        return map;
    }();
    const auto found = kByName.find(name);
    return found == kByName.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Property> propertyFromDeclaration(std::string_view name) {
    const bool inSmallLetters =
        std::all_of(name.begin(), name.end(), [](char c) { return text::lowerCase(c) == c; });
    return inSmallLetters ? propertyFromName(name) : propertyFromName(text::lowerCase(name));
}

void StatedStyle::set(Property property, std::string_view value, Importance importance) {
    const auto i = static_cast<std::size_t>(property);
    if (important_[i] && importance == Importance::Normal)
        return;
    values_[i] = trimmed(value);
    important_[i] = importance == Importance::Important;
    if (property < kFirstOfText)
        return;
    statesText_ = true;
    if (property == Property::Font)
        setFont(values_[i], importance);
}

void StatedStyle::setFont(std::string_view shorthand, Importance importance) {
    const FontStatements font = parseFont(shorthand);
    if (font.families.empty())
        return;
    set(Property::FontStyle, font.style, importance);
    set(Property::FontVariant, font.variant, importance);
    set(Property::FontVariationSettings, "normal", importance);
    set(Property::FontWeight, font.weight, importance);
    set(Property::FontStretch, font.stretch, importance);
    set(Property::FontSize, font.size, importance);
    set(Property::FontFamily, font.families, importance);
}

bool StatedStyle::asksForCustomProperties() const {
    return std::any_of(values_.begin(), statedEnd(), asksForCustomProperty);
}

void StatedStyle::replace(CustomValues& values, const CustomProperties* properties) {
    const std::size_t count = static_cast<std::size_t>(statedEnd() - values_.begin());
    for (std::string_view& value : std::span(values_).first(count))
        if (asksForCustomProperty(value))
            value = trimmed(values.replaced(value, properties));
}

} // namespace easel::svg
