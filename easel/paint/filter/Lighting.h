// Lights a picture as if its alpha were heights.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/filter/FilterSpace.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

Surface lit(const drawing::LightingEffect& effect, bool linearLight, const Surface& picture,
            const FilterSpace& space);

} // namespace easel::paint
