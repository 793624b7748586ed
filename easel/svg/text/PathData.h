// The path data language of the `d` attribute.
#pragma once

#include "easel/drawing/Path.h"

#include <string_view>

namespace easel::svg {

struct PathData {
    drawing::Path path;
    bool complete = true; // false: the path ends before the first mistake in the text, as SVG asks
};

// All commands, arcs included, which become cubics.
PathData parsePathData(std::string_view text);

// Numbers in pairs, as in the `points` attribute; an odd last one is left out.
std::vector<drawing::Point> parsePoints(std::string_view text);

} // namespace easel::svg
