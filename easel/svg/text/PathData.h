// The path data language of the `d` attribute.
#pragma once

#include "easel/drawing/Path.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace easel::svg {

struct PathData {
    drawing::Path path;
    std::vector<std::uint32_t> insideArcs; // numbers of the verbs that end inside an arc, not at its end
    bool complete = true; // false: the path ends before the first mistake in the text, as SVG asks
};

// All commands, arcs included, which become cubics.
PathData parsePathData(std::string_view text);

// Numbers in pairs, as in the `points` attribute; an odd last one is left out.
std::vector<drawing::Point> parsePoints(std::string_view text);

} // namespace easel::svg
