// The outlines of text elements.
#pragma once

#include "easel/svg/read/Scene.h"
#include "easel/svg/read/TextContent.h"
#include "easel/type/Text.h"

#include <optional>
#include <vector>

namespace easel::svg {

// A text in its own units. `outlines` are those that show, each painted as the paint of that index says.
struct TextShape {
    std::vector<type::PaintedOutline> outlines;
    std::vector<TextPaint> paints;
    drawing::Box cells; // what shares of the text's box are measured by

    // All of them as one.
    drawing::Path wholeOutline() const;
};

// Nothing if nothing of the text shows, or if there is no typesetter, which is noted. `place` is inside the
// element: its style and units are the element's own.
std::optional<TextShape> readText(pugi::xml_node element, const StatedStyle& stated, const Scene& scene,
                                  const Place& place);

} // namespace easel::svg
