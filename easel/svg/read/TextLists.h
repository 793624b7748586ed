// The lists of places that elements of text give their characters one by one.
#pragma once

#include "easel/svg/text/Length.h"
#include "easel/type/Text.h"

#include <pugixml.hpp>

#include <cstddef>
#include <vector>

namespace easel::svg {

// Lengths between blanks and commas, up to the first that is none.
std::vector<double> parseLengthList(std::string_view text, const LengthContext& lengths, Axis axis);

// The lists of the elements around the character that comes next, outermost first.
class TextLists {
  public:
    // An element begins, or the innermost one ends.
    void open(pugi::xml_node element, const LengthContext& lengths);
    void close() { open_.pop_back(); }

    // Gives the next character what is stated for it; inner elements are stronger.
    void place(type::Character& character);

  private:
    struct Lists {
        std::vector<double> x, y, dx, dy, rotate;
        std::size_t count = 0; // characters so far
    };

    std::vector<Lists> open_;
};

} // namespace easel::svg
