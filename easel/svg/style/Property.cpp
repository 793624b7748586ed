#include "easel/svg/style/Property.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <unordered_map>

namespace easel::svg {

namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, kPropertyCount> kNames = {"clip-path",
                                                                 "clip-rule",
                                                                 "color",
                                                                 "color-interpolation",
                                                                 "cx",
                                                                 "cy",
                                                                 "d",
                                                                 "display",
                                                                 "fill",
                                                                 "fill-opacity",
                                                                 "fill-rule",
                                                                 "filter",
                                                                 "font-size",
                                                                 "height",
                                                                 "image-rendering",
                                                                 "isolation",
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
                                                                 "y"};

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

void StatedStyle::set(Property property, std::string_view value, Importance importance) {
    const auto i = static_cast<std::size_t>(property);
    if (important_[i] && importance == Importance::Normal)
        return;
    values_[i] = trimmed(value);
    important_[i] = importance == Importance::Important;
}

void StatedStyle::set(const Declaration& declaration) {
    if (const auto property = propertyFromName(declaration.name))
        set(*property, declaration.value, declaration.importance);
}

bool StatedStyle::asksForCustomProperties() const {
    return std::any_of(values_.begin(), values_.end(), asksForCustomProperty);
}

void StatedStyle::replace(CustomValues& values, const CustomProperties* properties) {
    for (std::string_view& value : values_)
        if (asksForCustomProperty(value))
            value = trimmed(values.replaced(value, properties));
}

} // namespace easel::svg
