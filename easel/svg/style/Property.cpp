#include "easel/svg/style/Property.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace easel::svg {

namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, kPropertyCount> kNames = {"clip-path",
                                                                 "clip-rule",
                                                                 "color",
                                                                 "display",
                                                                 "fill",
                                                                 "fill-opacity",
                                                                 "fill-rule",
                                                                 "filter",
                                                                 "font-size",
                                                                 "marker",
                                                                 "marker-end",
                                                                 "marker-mid",
                                                                 "marker-start",
                                                                 "mask",
                                                                 "mix-blend-mode",
                                                                 "opacity",
                                                                 "overflow",
                                                                 "paint-order",
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
                                                                 "vector-effect",
                                                                 "visibility"};

class ElementSubject : public SelectorSubject {
  public:
    ElementSubject(const XmlTree& tree, pugi::xml_node element) : tree_(tree), element_(element) {}

    std::string_view elementName() const override { return tree_.svgName(element_); }
    const char* attribute(const std::string& name) const override {
        const pugi::xml_attribute found = element_.attribute(name.c_str());
        return found ? found.value() : nullptr;
    }
    std::unique_ptr<SelectorSubject> parent() const override {
        const pugi::xml_node above = element_.parent();
        if (above.type() != pugi::node_element)
            return nullptr;
        return std::make_unique<ElementSubject>(tree_, above);
    }

  private:
    const XmlTree& tree_;
    pugi::xml_node element_;
};

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

Cascade::Cascade(const XmlTree& tree) : tree_(tree) {
    for (const pugi::xml_node sheet : tree.sheets())
        if (tree.svgName(sheet) == "style")
            addSheet(sheet);
}

void Cascade::addSheet(pugi::xml_node styleElement) {
    const std::string_view type = styleElement.attribute("type").value();
    if (!type.empty() && !equalIgnoringCase(trimmed(type), "text/css"))
        return;
    std::string text;
    for (const pugi::xml_node part : styleElement.children())
        text += part.value();
    sheetsStateFill_ = sheetsStateFill_ || text.find("fill") != std::string::npos;
    sheetsImport_ = sheetsImport_ || text.find("@import") != std::string::npos;
    sheet_.add(text);
}

StatedStyle Cascade::of(pugi::xml_node element) const {
    StatedStyle style;
    for (const pugi::xml_attribute attribute : element.attributes())
        if (const auto property = propertyFromName(attribute.name()))
            style.set(*property, attribute.value(), Importance::Normal);
    if (!sheet_.empty())
        for (const Declaration& declaration : sheet_.declarationsFor(ElementSubject(tree_, element)))
            style.set(declaration);
    for (const Declaration& declaration : parseDeclarations(element.attribute("style").value()))
        style.set(declaration);
    return style;
}

} // namespace easel::svg
