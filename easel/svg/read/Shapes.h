// The outlines of shape elements.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/svg/style/Property.h"
#include "easel/svg/text/Length.h"
#include "easel/svg/text/XmlTree.h"

#include <optional>
#include <string_view>
#include <vector>

namespace easel::svg {

struct Shape {
    drawing::Kind kind = drawing::Kind::Path;
    drawing::Path outline;                 // in the element's own units
    std::vector<std::uint32_t> insideArcs; // numbers of its verbs that end inside an arc of the path data
    drawing::Box cells{};                  // of text, around what its letters take up; empty for other shapes

    // What shares of the shape's box are measured by.
    drawing::Box box() const { return cells.empty() ? outline.bounds() : cells; }
};

bool isShape(std::string_view svgName);

// Nothing if the element is no shape or its shape is empty.
std::optional<Shape> readShape(pugi::xml_node element, std::string_view svgName, const StatedStyle& stated,
                               const LengthContext& lengths);

} // namespace easel::svg
