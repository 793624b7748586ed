// The gradients of a file that is being written, and the fills that refer to them.
#pragma once

#include "easel/drawing/Object.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

// Gathers the gradients that objects refer to, each under a name of its own.
class GradientBlock {
  public:
    // No name that the text contains is given out. `prefix` stands before element names.
    GradientBlock(std::string_view text, std::string prefix);

    bool empty() const { return elements_.empty(); }
    // Each adds an element and gives a paint that refers to it, for use in the units of the object.
    std::string addRecord(const drawing::Object& object);
    std::string addForeign(const drawing::Gradient& gradient, const drawing::Object& object);
    // Each element on a line of its own, begun with `lineBreak`.
    std::string text(std::string_view lineBreak) const;

  private:
    std::string addElement(const drawing::Gradient& gradient, const drawing::Affine& toUnits,
                           const std::string& ownAttributes);

    std::string prefix_;
    std::size_t lastNumber_ = 0;
    std::vector<std::string> elements_;
};

// The paint that fills the object, which `gradients` takes note of. Nothing for what the file already says
// better.
std::string fillText(const drawing::Object& object, GradientBlock& gradients);
// The same for the paint that strokes it, "none" where nothing does.
std::string strokeText(const drawing::Object& object, GradientBlock& gradients);

} // namespace easel::svg
