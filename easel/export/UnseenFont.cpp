#include "easel/export/UnseenFont.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>

namespace easel::exports {

namespace {

constexpr double kUnitsPerEm = 1000;
constexpr double kWidest = 10;
// The ink of a letter: two specks in opposite corners of its cell, much smaller than any pixel.
constexpr double kSpeck = 1e-3;
constexpr double kAscent = 0.8;
constexpr double kDescent = 0.2;

cairo_status_t draw(cairo_scaled_font_t*, unsigned long glyph, cairo_t* cairo,
                    cairo_text_extents_t* extents) {
    extents->x_advance = static_cast<double>(glyph) / kUnitsPerEm;
    cairo_rectangle(cairo, 0, kDescent - kSpeck, kSpeck, kSpeck);
    cairo_rectangle(cairo, std::max(extents->x_advance, kSpeck) - kSpeck, -kAscent, kSpeck, kSpeck);
    cairo_fill(cairo);
    return CAIRO_STATUS_SUCCESS;
}

} // namespace

std::uint32_t unseenGlyph(double width) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(width, 0.0, kWidest) * kUnitsPerEm));
}

cairo_font_face_t* newUnseenFont() {
    cairo_font_face_t* const face = cairo_user_font_face_create();
    cairo_user_font_face_set_render_glyph_func(face, draw);
    return face;
}

} // namespace easel::exports
