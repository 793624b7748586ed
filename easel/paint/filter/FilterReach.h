// How far the effects of a filter reach.
#pragma once

#include "easel/drawing/Filter.h"

#include <optional>

namespace easel::paint {

// How far from a pixel, in pixels, the source may have a part in what the filter makes of it, when its units
// are so many pixels large. Nothing if every part of the source may.
struct FilterReach {
    double x = 0;
    double y = 0;
};
std::optional<FilterReach> reachOf(const drawing::Filter& filter, drawing::Point scale);

} // namespace easel::paint
