// Paths as Cairo takes them.
#pragma once

#include "easel/drawing/Path.h"

#include <cairo.h>

namespace easel::exports {

// Adds the path to the context's own, moved to the nearest place that Cairo can compute with and without the
// points that are not finite.
void appendPath(cairo_t* cairo, const drawing::Path& path);

} // namespace easel::exports
