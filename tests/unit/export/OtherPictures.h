// Pictures of drawings made by Cairo and librsvg.
#pragma once

#include "easel/paint/pixels/Surface.h"

#include <filesystem>
#include <functional>

using cairo_t = struct _cairo;

// What `draw` paints with a Cairo context on transparent pixels.
easel::paint::Surface paintedByCairo(int width, int height, const std::function<void(cairo_t*)>& draw);

// The SVG file as librsvg shows it on so many pixels, `scale` of them for each unit of its size; absolute
// lengths count 96 units to the inch. Transparent if librsvg cannot show it.
easel::paint::Surface paintedByLibrsvg(const std::filesystem::path& file, double unitsWide, double unitsHigh,
                                       double scale);
