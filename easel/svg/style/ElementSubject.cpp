#include "easel/svg/style/ElementSubject.h"

namespace easel::svg {

namespace {

pugi::xml_node elementBefore(pugi::xml_node node) {
    do
        node = node.previous_sibling();
    while (node && node.type() != pugi::node_element);
    return node;
}

} // namespace

const char* ElementSubject::attribute(const std::string& name) const {
    const pugi::xml_attribute found = element_.attribute(name.c_str());
    return found ? found.value() : nullptr;
}

std::unique_ptr<SelectorSubject> ElementSubject::subject(pugi::xml_node element) const {
    if (element.type() != pugi::node_element)
        return nullptr;
    return std::make_unique<ElementSubject>(cascade_, element);
}

std::unique_ptr<SelectorSubject> ElementSubject::parent() const {
    return subject(element_.parent());
}

std::unique_ptr<SelectorSubject> ElementSubject::previous() const {
    return subject(elementBefore(element_));
}

// Counts back to the neighbour that was asked last, so that going through many takes no longer than they are.
std::size_t ElementSubject::position() const {
    Cascade::Position& last = cascade_.lastPosition_;
    std::size_t count = 0;
    pugi::xml_node at = element_;
    while (at && at != last.element) {
        ++count;
        at = elementBefore(at);
    }
    last = {element_, at ? last.number + count : count};
    return last.number;
}

bool ElementSubject::isLast() const {
    pugi::xml_node after = element_.next_sibling();
    while (after && after.type() != pugi::node_element)
        after = after.next_sibling();
    return !after;
}

} // namespace easel::svg
