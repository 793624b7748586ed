// Our pixels as an image of Cairo's.
#pragma once

#include "easel/paint/pixels/Surface.h"

#include <cairo.h>

#include <memory>

namespace easel::exports {

using CairoImage = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

// A copy, since Cairo reads the pixels only when the page is written. Throws std::bad_alloc.
CairoImage imageOf(const paint::Surface& pixels);

} // namespace easel::exports
