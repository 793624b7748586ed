#include "easel/svg/read/ReferenceChain.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

namespace {
constexpr std::size_t kLongestChain = 1000;
} // namespace

ReferenceChain::ReferenceChain(const XmlTree& tree, pugi::xml_node element,
                               bool (*belongs)(std::string_view svgName)) {
    while (element && belongs(tree.svgName(element))) {
        if (std::find(elements_.begin(), elements_.end(), element) != elements_.end() ||
            elements_.size() == kLongestChain) {
            circular_ = true;
            return;
        }
        elements_.push_back(element);
        element = tree.byId(localId(hrefOf(element)));
    }
}

pugi::xml_attribute ReferenceChain::find(const char* name) const {
    for (const pugi::xml_node element : elements_)
        if (const pugi::xml_attribute found = element.attribute(name))
            return found;
    return {};
}

std::string_view ReferenceChain::attribute(const char* name) const {
    return trimmed(find(name).value());
}

} // namespace easel::svg
