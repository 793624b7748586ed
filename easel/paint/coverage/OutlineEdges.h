// Hands the sides of a shape to the rasteriser, curves as short lines.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/paint/coverage/Rasteriser.h"

#include <span>

namespace easel::paint {

// Points that are not finite are left out; open subpaths are closed by a line. Curves stray at most a
// fiftieth of a pixel from what was asked for. Ends early, with the shape in part, once the rasteriser holds
// more than `mostEdges`.
void addOutline(Rasteriser& rasteriser, const drawing::Path& shape, const drawing::Affine& toSurface,
                std::size_t mostEdges);
void addPolygon(Rasteriser& rasteriser, std::span<const drawing::Point> corners,
                const drawing::Affine& toSurface);

} // namespace easel::paint
