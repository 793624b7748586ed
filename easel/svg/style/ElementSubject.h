// An element of the file as selectors see it.
#pragma once

#include "easel/svg/style/Property.h"

namespace easel::svg {

class ElementSubject : public SelectorSubject {
  public:
    ElementSubject(const Cascade& cascade, pugi::xml_node element) : cascade_(cascade), element_(element) {}

    std::string_view elementName() const override { return cascade_.tree_.svgName(element_); }
    const char* attribute(const std::string& name) const override;
    std::unique_ptr<SelectorSubject> parent() const override;
    std::unique_ptr<SelectorSubject> previous() const override;
    std::size_t position() const override;
    bool isLast() const override;

  private:
    std::unique_ptr<SelectorSubject> subject(pugi::xml_node element) const;

    const Cascade& cascade_;
    pugi::xml_node element_;
};

} // namespace easel::svg
