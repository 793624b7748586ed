// The fonts that a file brings along for its own text.
#pragma once

#include "easel/svg/text/ReadError.h"
#include "easel/svg/text/XmlTree.h"
#include "easel/type/DrawnFont.h"
#include "easel/type/DrawnTypesetter.h"

#include <memory>
#include <vector>

namespace easel::svg {

// Those of the file's `font` elements that say for which family they are.
std::vector<type::DrawnFont> readFonts(const XmlTree& tree, Budget& budget);

// What sets the text of a file: made when its first text is met.
class TextFonts {
  public:
    TextFonts(const XmlTree& tree, Budget& budget) : tree_(tree), budget_(budget) {}

    // Null if nothing can set text.
    type::Typesetter* typesetter();

  private:
    const XmlTree& tree_;
    Budget& budget_;
    bool made_ = false;
    std::unique_ptr<type::DrawnTypesetter> own_;
};

} // namespace easel::svg
