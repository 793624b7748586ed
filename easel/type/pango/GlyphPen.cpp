#include "easel/type/pango/GlyphPen.h"

namespace easel::type {

using drawing::Path;
using drawing::Point;

namespace {

Path& pathOf(void* data) {
    return *static_cast<Path*>(data);
}

Point point(float x, float y) {
    return {static_cast<double>(x), static_cast<double>(y)};
}

void moveTo(hb_draw_funcs_t*, void* path, hb_draw_state_t*, float x, float y, void*) {
    pathOf(path).moveTo(point(x, y));
}

void lineTo(hb_draw_funcs_t*, void* path, hb_draw_state_t*, float x, float y, void*) {
    pathOf(path).lineTo(point(x, y));
}

void cubicTo(hb_draw_funcs_t*, void* path, hb_draw_state_t*, float x1, float y1, float x2, float y2, float x,
             float y, void*) {
    pathOf(path).cubicTo(point(x1, y1), point(x2, y2), point(x, y));
}

// A quadratic curve is the cubic one whose controls lie two thirds of the way to its own.
void quadraticTo(hb_draw_funcs_t*, void* path, hb_draw_state_t* state, float x1, float y1, float x, float y,
                 void*) {
    const Point start = point(state->current_x, state->current_y);
    const Point control = point(x1, y1);
    const Point end = point(x, y);
    pathOf(path).cubicTo(start + (control - start) * (2.0 / 3), end + (control - end) * (2.0 / 3), end);
}

void closePath(hb_draw_funcs_t*, void* path, hb_draw_state_t*, void*) {
    pathOf(path).close();
}

} // namespace

GlyphPen::GlyphPen() : funcs_(hb_draw_funcs_create()) {
    hb_draw_funcs_set_move_to_func(funcs_.get(), moveTo, nullptr, nullptr);
    hb_draw_funcs_set_line_to_func(funcs_.get(), lineTo, nullptr, nullptr);
    hb_draw_funcs_set_quadratic_to_func(funcs_.get(), quadraticTo, nullptr, nullptr);
    hb_draw_funcs_set_cubic_to_func(funcs_.get(), cubicTo, nullptr, nullptr);
    hb_draw_funcs_set_close_path_func(funcs_.get(), closePath, nullptr, nullptr);
}

Path GlyphPen::outlineOf(hb_font_t* font, std::uint32_t glyph) const {
    Path path;
#if HB_VERSION_ATLEAST(7, 0, 0)
    hb_font_draw_glyph(font, glyph, funcs_.get(), &path);
#else
    hb_font_get_glyph_shape(font, glyph, funcs_.get(), &path);
#endif
    return path;
}

} // namespace easel::type
