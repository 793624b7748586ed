// The elements of an SVG file, with what is asked of them everywhere.
#pragma once

#include "easel/svg/text/ReadError.h"

#include <pugixml.hpp>

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace easel::svg {

class XmlTree {
  public:
    // The text is UTF-8. Throws ReadError if it is not XML or not SVG.
    explicit XmlTree(const std::string& text);
    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    pugi::xml_node root() const { return root_; }
    std::size_t elementCount() const { return elementCount_; }
    // The name without its prefix if the element belongs to SVG, else an empty name.
    std::string_view svgName(pugi::xml_node element) const;
    // What stands before the names of SVG elements: nothing, or a prefix with its colon.
    std::string_view prefix() const;
    // The first element with this id, or none.
    pugi::xml_node byId(std::string_view id) const;
    // The elements that are found by their ids, numbered in the order of the text.
    struct WithId {
        std::string_view id;
        pugi::xml_node element;
    };
    const std::vector<WithId>& withIds() const { return withIds_; }
    std::optional<std::size_t> idNumber(std::string_view id) const;
    // What may be style sheets, in the order of the text.
    const std::vector<pugi::xml_node>& sheets() const { return sheets_; }
    // Whether each shape is read once and then no more: nothing in the text shows another element again, and
    // no style sheet asks what stands beside an element. What an id names may still be asked for.
    bool readOnce() const { return !showsAgain_ && sheets_.empty(); }
    // Where the '<' of the element's start tag is in the text.
    std::size_t tagBegin(pugi::xml_node element) const;

  private:
    void index(const std::string& text);
    void numberIds();
    void noteAttributes(pugi::xml_node element);
    void noteNamespace(pugi::xml_node element, pugi::xml_attribute attribute);

    pugi::xml_document document_;
    pugi::xml_node root_;
    std::size_t elementCount_ = 0;
    std::vector<WithId> withIds_;
    std::pmr::monotonic_buffer_resource idMemory_;
    std::pmr::unordered_map<std::string_view, std::uint32_t> idNumbers_{&idMemory_};
    std::vector<pugi::xml_node> sheets_;
    bool showsAgain_ = false; // whether any element but a gradient refers to another one
    bool plainNamesAreSvg_ = true;
    std::unordered_set<std::string> svgPrefixes_; // with their colons
};

// The node that follows in the order of the text, inside the root or else none; so a tree of any depth is
// gone through without recursion.
pugi::xml_node nextInside(pugi::xml_node root, pugi::xml_node node);

// What `href` or `xlink:href` says; empty if neither is there.
std::string_view hrefOf(pugi::xml_node element);

// The id in "#id" or "url(#id)", perhaps quoted; empty if the reference is not to this file.
std::string_view localId(std::string_view reference);

} // namespace easel::svg
