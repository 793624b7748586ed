// Calls of Cairo.
#include "benchmarks/CairoPeer.h"

namespace bench {

namespace {

cairo_pattern_t* emptyPattern(const easel::drawing::LinearGeometry& line) {
    return cairo_pattern_create_linear(line.start.x, line.start.y, line.end.x, line.end.y);
}

cairo_pattern_t* emptyPattern(const easel::drawing::RadialGeometry& circles) {
    return cairo_pattern_create_radial(circles.focus.x, circles.focus.y, circles.focusRadius,
                                       circles.centre.x, circles.centre.y, circles.radius);
}

} // namespace

CairoPattern patternOf(const easel::drawing::Gradient& gradient) {
    cairo_pattern_t* pattern =
        std::visit([](const auto& geometry) { return emptyPattern(geometry); }, gradient.geometry);
    for (const easel::drawing::RampStop& stop : gradient.ramp.stops())
        cairo_pattern_add_color_stop_rgba(pattern, stop.position, stop.color.red / 65535.0,
                                          stop.color.green / 65535.0, stop.color.blue / 65535.0,
                                          stop.opacity);
    const easel::drawing::Affine map = gradient.toDrawing.inverse();
    const cairo_matrix_t toGradient{map.a, map.b, map.c, map.d, map.e, map.f};
    cairo_pattern_set_matrix(pattern, &toGradient);
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
    return {pattern, cairo_pattern_destroy};
}

CairoPeer::CairoPeer(easel::paint::Surface& surface)
    : surface_(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(surface.row(0)),
                                                   CAIRO_FORMAT_ARGB32, surface.width(), surface.height(),
                                                   static_cast<int>(surface.stride())),
               cairo_surface_destroy),
      cairo_(cairo_create(surface_.get()), cairo_destroy) {}

void CairoPeer::fillAll(cairo_pattern_t* pattern) {
    cairo_set_source(cairo_.get(), pattern);
    cairo_paint(cairo_.get());
}

void CairoPeer::fill(const easel::drawing::Path& polygon, cairo_pattern_t* pattern) {
    cairo_set_source(cairo_.get(), pattern);
    for (const easel::drawing::Point& point : polygon.points())
        cairo_line_to(cairo_.get(), point.x, point.y);
    cairo_close_path(cairo_.get());
    cairo_fill(cairo_.get());
}

} // namespace bench
