// How a pattern element lays its cell and its content on a shape.
#pragma once

#include "easel/svg/read/PaintServers.h"
#include "easel/svg/read/ReferenceChain.h"

#include <optional>

namespace easel::svg {

struct PatternFrame {
    drawing::Box cell;            // in the pattern's own units, with width and height above 0
    drawing::Affine toShape;      // from these units to those of the shape
    drawing::Affine contentToOwn; // from the units of the content
    double width = 0, height = 0; // of what percentages in the content are of
};

bool isPattern(std::string_view svgName);

// Nothing for a pattern that disables painting: without extent, or measured by a box without any.
std::optional<PatternFrame> patternFrame(const ReferenceChain& pattern, const PaintPlace& place);

} // namespace easel::svg
