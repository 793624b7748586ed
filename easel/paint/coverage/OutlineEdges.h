// Hands the sides of a shape to the rasteriser, curves as short lines.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/paint/coverage/Rasteriser.h"

#include <span>

namespace easel::paint {

// Points that are not finite are left out; open subpaths are closed by a line. Curves stray at most a
// fiftieth of a pixel from what was asked for.
void addOutline(Rasteriser& rasteriser, const drawing::Path& shape, const drawing::Affine& toSurface);
void addOutline(Rasteriser& rasteriser, std::span<const drawing::Contour> polygons,
                const drawing::Affine& toSurface);

} // namespace easel::paint
