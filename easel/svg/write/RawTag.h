// A start tag as it stands in the text, with the places of its attributes.
#pragma once

#include "easel/svg/text/Source.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace easel::svg {

struct RawAttribute {
    std::string_view name;
    Span value; // without its quotes
    Span whole; // with the blanks before it
};

class RawTag {
  public:
    // The start tag that begins at `begin` in the text, which must outlive the tag.
    RawTag(std::string_view text, std::size_t begin);

    Span span() const { return {begin_, end_}; }
    std::string_view name() const { return name_; }
    bool closesItself() const;
    // Where a further attribute goes: after the last one.
    std::size_t attributesEnd() const { return attributesEnd_; }
    const std::vector<RawAttribute>& attributes() const { return attributes_; }
    // Null if the tag has no such attribute.
    const RawAttribute* find(std::string_view name) const;
    // As it is written, references not replaced; empty if the tag has no such attribute.
    std::string_view value(std::string_view name) const;

  private:
    std::string_view text_;
    std::size_t begin_;
    std::size_t end_;
    std::size_t attributesEnd_;
    std::string_view name_;
    std::vector<RawAttribute> attributes_;
};

} // namespace easel::svg
