// Fonts whose letters are drawn as shapes: the `font` elements of SVG.
#pragma once

#include "easel/svg/text/ReadError.h"
#include "easel/svg/text/XmlTree.h"
#include "easel/type/DrawnFont.h"

#include <optional>
#include <string>
#include <vector>

namespace easel::svg {

// Those of the file's `font` elements that say for which family they are.
std::vector<type::DrawnFont> readFonts(const XmlTree& tree, Budget& budget);

// One of these elements for the font that is named; nothing if the element is none.
std::optional<type::DrawnFont> readFont(const XmlTree& tree, pugi::xml_node element, const type::Font& named,
                                        Budget& budget);

} // namespace easel::svg
