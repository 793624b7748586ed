// Moves each pixel by what another picture says.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// `reach`: by how many pixels the strongest channel value moves a pixel more than the weakest one.
Surface displaced(const drawing::DisplacementEffect& effect, drawing::Point reach, const Surface& picture,
                  const Surface& map);

} // namespace easel::paint
