// What a font says of its own heights.
#pragma once

#include "easel/type/Font.h"

#include <hb.h>

namespace easel::type {

// In ems. `unitsPerEm`: those that the font is scaled to.
FontMetrics metricsOf(hb_font_t* font, double unitsPerEm);

} // namespace easel::type
