// Text objects as `text` elements.
#pragma once

#include "easel/drawing/Object.h"

#include <string>
#include <vector>

namespace easel::exports {

struct TextElement {
    drawing::Affine toDrawing; // from the units inside the element
    std::string attributes;    // all but paint and name
    std::string content;
};

// Adds the elements that show what the object's outline does, each with letters of one angle. False, with
// nothing added, if there are none that do in every program.
bool textElements(const drawing::Object& object, std::vector<TextElement>& elements);

} // namespace easel::exports
