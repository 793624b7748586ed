// Draws the outlines of glyphs.
#pragma once

#include "easel/drawing/Path.h"

#include <hb.h>

#include <cstdint>
#include <memory>

namespace easel::type {

class GlyphPen {
  public:
    GlyphPen();

    // In the units that the font is scaled to, up is positive.
    drawing::Path outlineOf(hb_font_t* font, std::uint32_t glyph) const;

  private:
    struct DestroyFuncs {
        void operator()(hb_draw_funcs_t* funcs) const { hb_draw_funcs_destroy(funcs); }
    };

    std::unique_ptr<hb_draw_funcs_t, DestroyFuncs> funcs_;
};

} // namespace easel::type
