// Elements that take over from each other what they do not say themselves.
#pragma once

#include "easel/svg/text/XmlTree.h"

#include <string_view>
#include <vector>

namespace easel::svg {

class ReferenceChain {
  public:
    // The element and those it refers to, nearest first, as far as `belongs` says that their names do.
    ReferenceChain(const XmlTree& tree, pugi::xml_node element, bool (*belongs)(std::string_view svgName));

    const std::vector<pugi::xml_node>& elements() const { return elements_; }
    // Whether it would go on for ever; the reference that closes the circle counts as none.
    bool circular() const { return circular_; }

    // The attribute of the nearest element that has it; none if none has.
    pugi::xml_attribute find(const char* name) const;
    // What it says, without blanks at its ends.
    std::string_view attribute(const char* name) const;

  private:
    std::vector<pugi::xml_node> elements_;
    bool circular_ = false;
};

} // namespace easel::svg
