// Walks both trees side by side.
#include "easel/classic/PluginTexts.h"

#include "easel/text/Ascii.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace easel::classic {
namespace {

constexpr std::array<std::string_view, 10> kInTheLanguage{"title", "text",  "detail", "confirm", "decline",
                                                          "tip",   "label", "bounds", "width",   "height"};

using TextFlaw = std::optional<std::string>;

bool isNamed(const pugi::xml_node& node, std::string_view name) {
    return node.name() == name;
}

// Of the same kind, with the same number in that attribute.
pugi::xml_node counterpart(const pugi::xml_node& node, const char* number, const pugi::xml_node& among) {
    const std::string_view wanted = text::trimmed(node.attribute(number).value());
    return among.find_child([&](const pugi::xml_node& candidate) {
        return isNamed(candidate, node.name()) &&
               text::trimmed(candidate.attribute(number).value()) == wanted;
    });
}

TextFlaw putAttributes(const pugi::xml_node& from, pugi::xml_node to, std::string_view number) {
    for (const pugi::xml_attribute& attribute : from.attributes()) {
        const std::string_view name = attribute.name();
        if (name == number)
            continue;
        if (std::find(kInTheLanguage.begin(), kInTheLanguage.end(), name) == kInTheLanguage.end())
            return '"' + std::string(name) + "\" is not for a language to say";
        if (!to.attribute(attribute.name()))
            to.append_attribute(attribute.name());
        to.attribute(attribute.name()).set_value(attribute.value());
    }
    return {};
}

TextFlaw putItems(const pugi::xml_node& from, const pugi::xml_node& to) {
    for (const pugi::xml_node& item : from.children()) {
        if (item.type() != pugi::node_element)
            continue;
        const pugi::xml_node own = counterpart(item, "item", to);
        if (!own)
            return std::string("the dialog has no such <") + item.name() + ">";
        if (TextFlaw flaw = putAttributes(item, own, "item"))
            return flaw;
    }
    return {};
}

pugi::xml_node elementFrom(pugi::xml_node node) {
    while (node && node.type() != pugi::node_element)
        node = node.next_sibling();
    return node;
}

// Strings of a list, or entries of a menu.
TextFlaw putLines(const pugi::xml_node& from, const pugi::xml_node& to) {
    pugi::xml_node own = elementFrom(to.first_child());
    for (pugi::xml_node line = elementFrom(from.first_child()); line;
         line = elementFrom(line.next_sibling()), own = elementFrom(own.next_sibling())) {
        if (!isNamed(own, line.name()))
            return std::string("there is no <") + line.name() + "> in that place";
        const bool stays = own.attribute("translate").value() == std::string_view("no");
        if (!stays && !text::trimmed(line.text().get()).empty())
            own.text().set(line.text().get());
    }
    return {};
}

TextFlaw putResource(const pugi::xml_node& from, const pugi::xml_node& to) {
    if (TextFlaw flaw = putAttributes(from, to, "id"))
        return flaw;
    if (isNamed(from, "dialog"))
        return putItems(from, to);
    return isNamed(from, "strings") || isNamed(from, "menu") ? putLines(from, to) : TextFlaw();
}

} // namespace

TextFlaw putTexts(const pugi::xml_node& texts, const pugi::xml_node& resources) {
    for (const pugi::xml_node& resource : texts.children()) {
        if (resource.type() != pugi::node_element)
            continue;
        const pugi::xml_node own = counterpart(resource, "id", resources);
        const std::string where =
            std::string("<") + resource.name() + " id=\"" + resource.attribute("id").value() + "\">: ";
        if (!own)
            return where + "the plug-in has no such resource";
        if (const TextFlaw flaw = putResource(resource, own))
            return where + *flaw;
    }
    return {};
}

} // namespace easel::classic
