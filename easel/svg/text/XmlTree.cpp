#include "easel/svg/text/XmlTree.h"

#include "easel/svg/text/Entities.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <cstring>

namespace easel::svg {

namespace {

constexpr std::string_view kSvgNamespace = "http://www.w3.org/2000/svg";

constexpr std::size_t kLongestPrefix = 32;

std::size_t lineOf(const std::string& text, std::ptrdiff_t offset) {
    const auto end =
        text.begin() + std::clamp<std::ptrdiff_t>(offset, 0, static_cast<std::ptrdiff_t>(text.size()));
    return static_cast<std::size_t>(std::count(text.begin(), end, '\n')) + 1;
}

std::string describe(const pugi::xml_parse_result& result, const std::string& text) {
    const bool atEnd = result.offset >= 0 && static_cast<std::size_t>(result.offset) + 1 >= text.size();
    if (result.status == pugi::status_no_document_element)
        return "it is not XML: it has no element";
    if (atEnd)
        return "it is not complete: it ends inside an element";
    return "it is not well-formed XML (line " + std::to_string(lineOf(text, result.offset)) + ")";
}

// Calls visit(element) for the element and all below it, in the order of the text.
template <class Visitor> void forEachElement(pugi::xml_node root, Visitor visit) {
    for (pugi::xml_node node = root; node; node = nextInside(root, node))
        if (node.type() == pugi::node_element)
            visit(node);
}

void expandText(pugi::xml_node element, Entities& entities) {
    for (pugi::xml_node part : element.children())
        if (part.type() == pugi::node_pcdata && std::strchr(part.value(), '&'))
            part.set_value(entities.expanded(part.value()).c_str());
}

bool isTextTag(std::string_view afterBracket) {
    if (afterBracket.starts_with("text"))
        return true;
    const std::size_t end = afterBracket.substr(0, kLongestPrefix).find_first_of(": />");
    return end != std::string_view::npos && afterBracket.substr(end).starts_with(":text");
}

// Blanks between elements mean something in text only, and drawings without text do without a node for each.
unsigned parseOptions(const std::string& text) {
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1))
        if (isTextTag(std::string_view(text).substr(at + 1)))
            return pugi::parse_default | pugi::parse_ws_pcdata;
    return pugi::parse_default;
}

std::string_view prefixOf(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon + 1);
}

} // namespace

XmlTree::XmlTree(const std::string& text) {
    if (text.find('\0') != std::string::npos)
        throw ReadError{Fault::NotXml, "it is not XML: it holds characters that no text has"};
    const pugi::xml_parse_result result =
        document_.load_buffer(text.data(), text.size(), parseOptions(text), pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory)
        throw std::bad_alloc();
    if (!result)
        throw ReadError{Fault::NotXml, describe(result, text)};
    root_ = document_.document_element();
    index(text);
    if (svgName(root_) != "svg")
        throw ReadError{Fault::NotSvg, "it is XML, but not an SVG drawing"};
}

void XmlTree::index(const std::string& text) {
    Entities entities(text);
    forEachElement(root_, [&](pugi::xml_node element) {
        ++elementCount_;
        if (!entities.empty())
            for (pugi::xml_attribute attribute : element.attributes())
                if (std::strchr(attribute.value(), '&'))
                    attribute.set_value(entities.expanded(attribute.value()).c_str());
        noteAttributes(element);
        if (std::string_view(element.name()).ends_with("style")) {
            sheets_.push_back(element);
        }
        if (!entities.empty())
            expandText(element, entities);
        // An empty id is none: whatever refers to nothing would refer to it.
        if (const std::string_view id = element.attribute("id").value(); !id.empty())
            withIds_.push_back({id, element});
    });
    numberIds();
}

// An id that stands twice is that of the first element alone.
void XmlTree::numberIds() {
    idNumbers_.reserve(withIds_.size());
    std::uint32_t count = 0;
    for (const WithId& each : withIds_)
        if (idNumbers_.try_emplace(each.id, count).second)
            withIds_[count++] = each;
    withIds_.resize(count);
}

void XmlTree::noteAttributes(pugi::xml_node element) {
    for (const pugi::xml_attribute attribute : element.attributes()) {
        const std::string_view name = attribute.name();
        if (name.starts_with("xmlns"))
            noteNamespace(element, attribute);
        else if ((name == "href" || name == "xlink:href") && !localId(attribute.value()).empty())
            showsAgain_ = showsAgain_ || !std::string_view(element.name()).ends_with("Gradient");
    }
}

void XmlTree::noteNamespace(pugi::xml_node element, pugi::xml_attribute attribute) {
    const std::string_view name = attribute.name();
    const bool isSvg = attribute.value() == kSvgNamespace;
    if (name.starts_with("xmlns:") && isSvg)
        svgPrefixes_.insert(std::string(name.substr(6)) + ':');
    // A root in another language; inside a drawing foreign elements carry prefixes.
    if (name == "xmlns" && !isSvg && element == root_ && *attribute.value() != '\0')
        plainNamesAreSvg_ = false;
}

std::string_view XmlTree::svgName(pugi::xml_node element) const {
    const std::string_view name = element.name();
    const std::string_view prefix = prefixOf(name);
    if (prefix.empty())
        return plainNamesAreSvg_ ? name : std::string_view();
    if (svgPrefixes_.find(std::string(prefix)) == svgPrefixes_.end())
        return {};
    return name.substr(prefix.size());
}

std::string_view XmlTree::prefix() const {
    return prefixOf(root_.name());
}

pugi::xml_node XmlTree::byId(std::string_view id) const {
    const auto number = idNumber(id);
    return number ? withIds_[*number].element : pugi::xml_node();
}

std::optional<std::size_t> XmlTree::idNumber(std::string_view id) const {
    const auto found = idNumbers_.find(id);
    return found == idNumbers_.end() ? std::nullopt : std::optional<std::size_t>(found->second);
}

std::size_t XmlTree::tagBegin(pugi::xml_node element) const {
    return static_cast<std::size_t>(element.offset_debug()) - 1;
}

pugi::xml_node nextInside(pugi::xml_node root, pugi::xml_node node) {
    if (node.first_child())
        return node.first_child();
    while (node != root && !node.next_sibling())
        node = node.parent();
    return node == root ? pugi::xml_node() : node.next_sibling();
}

std::string_view hrefOf(pugi::xml_node element) {
    if (const pugi::xml_attribute plain = element.attribute("href"))
        return trimmed(plain.value());
    return trimmed(element.attribute("xlink:href").value());
}

std::string_view localId(std::string_view reference) {
    std::string_view text = trimmed(reference);
    if (equalIgnoringCase(text.substr(0, 4), "url(")) {
        text = text.substr(4);
        text = trimmed(text.substr(0, text.find(')')));
        if (text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front())
            text = trimmed(text.substr(1, text.size() - 2));
    }
    return text.size() > 1 && text.front() == '#' ? text.substr(1) : std::string_view();
}

} // namespace easel::svg
