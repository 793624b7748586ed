// Which values attributes, style sheets and style attributes give an element.
#include "easel/svg/style/CssIdentifier.h"
#include "easel/svg/style/ElementSubject.h"
#include "easel/svg/style/PropertyGrammar.h"
#include "easel/svg/text/Length.h"
#include "easel/svg/text/Scanner.h"

#include <string>

namespace easel::svg {

namespace {

// How many elements around one are asked for custom properties where it is not read from the outside in.
constexpr std::size_t kMostAround = 500;

// As far as the root tells it by itself.
MediaSize sizeOf(pugi::xml_node root) {
    Scanner viewBox(root.attribute("viewBox").value());
    double box[4] = {0, 0, 300, 150};
    for (double& value : box) {
        value = viewBox.number().value_or(value);
        viewBox.skipSeparator();
    }
    const LengthContext lengths{box[2], box[3]};
    return {parseLength(root.attribute("width").value(), lengths, Axis::Horizontal).value_or(box[2]),
            parseLength(root.attribute("height").value(), lengths, Axis::Vertical).value_or(box[3])};
}

} // namespace

Cascade::Cascade(const XmlTree& tree) : tree_(tree), media_(sizeOf(tree.root())) {
    for (const pugi::xml_node sheet : tree.sheets())
        if (tree.svgName(sheet) == "style")
            addSheet(sheet);
}

void Cascade::addSheet(pugi::xml_node styleElement) {
    const std::string_view type = styleElement.attribute("type").value();
    if (!type.empty() && !equalIgnoringCase(trimmed(type), "text/css"))
        return;
    if (!mediaMatches(styleElement.attribute("media").value(), media_))
        return;
    std::string text;
    for (const pugi::xml_node part : styleElement.children())
        text += part.value();
    const std::string plain = withPlainNames(text);
    const auto names = [&plain](std::string_view word) {
        return findIgnoringCase(plain, word) != std::string_view::npos;
    };
    sheetsStateFill_ = sheetsStateFill_ || names("fill");
    sheetsStateStroke_ = sheetsStateStroke_ || names("stroke");
    sheetsImport_ = sheetsImport_ || names("@import");
    sheet_.add(text, media_);
}

// Gives the style what is stated of the element, and returns the custom properties among it.
std::vector<Declaration> Cascade::gather(pugi::xml_node element, StatedStyle& style) const {
    std::vector<Declaration> custom;
    const auto state = [&](const std::vector<Declaration>& declarations) {
        for (const Declaration& declaration : declarations) {
            if (isCustomProperty(declaration.name))
                custom.push_back(declaration);
            else
                declare(style, declaration);
        }
    };
    for (const pugi::xml_attribute attribute : element.attributes())
        if (const auto property = propertyFromName(attribute.name()))
            style.set(*property, values_.plain(attribute.value()), Importance::Normal);
    if (!sheet_.empty())
        state(sheet_.declarationsFor(ElementSubject(*this, element)));
    state(parseDeclarations(values_.plain(element.attribute("style").value())));
    return custom;
}

StatedStyle Cascade::of(pugi::xml_node element, const CustomProperties* outer) const {
    StatedStyle style;
    auto custom = gather(element, style);
    style.custom = custom.empty() ? outer : values_.add(outer, std::move(custom));
    style.replace(values_, style.custom);
    return style;
}

StatedStyle Cascade::of(pugi::xml_node element) const {
    StatedStyle style;
    const auto custom = gather(element, style);
    if (!style.asksForCustomProperties())
        return style;
    return of(element, customAround(element));
}

const CustomProperties* Cascade::customAround(pugi::xml_node element) const {
    std::vector<pugi::xml_node> around;
    for (pugi::xml_node above = element.parent(); above.type() == pugi::node_element; above = above.parent())
        if (around.size() < kMostAround)
            around.push_back(above);
    const CustomProperties* custom = nullptr;
    for (auto it = around.rbegin(); it != around.rend(); ++it) {
        StatedStyle unused;
        if (auto own = gather(*it, unused); !own.empty())
            custom = values_.add(custom, std::move(own));
    }
    return custom;
}

} // namespace easel::svg
