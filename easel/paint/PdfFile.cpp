// Writes PDF by way of Cairo.
#include "easel/paint/PdfFile.h"

#include "easel/paint/CairoPainter.h"

#include <cairo-pdf.h>
#include <cairo.h>

#include <memory>
#include <new>

namespace easel::paint {

namespace {

constexpr double kPointsPerUnit = 72.0 / 96.0;

cairo_status_t append(void* closure, const unsigned char* data, unsigned int size) {
    try {
        auto& out = *static_cast<toolbox::Bytes*>(closure);
        out.insert(out.end(), data, data + size);
        return CAIRO_STATUS_SUCCESS;
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
}

} // namespace

toolbox::Bytes encodePdf(const drawing::Drawing& drawing, double scale) {
    const double points = kPointsPerUnit * scale;
    toolbox::Bytes out;
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
        cairo_pdf_surface_create_for_stream(&append, &out, drawing.width() * points,
                                            drawing.height() * points),
        &cairo_surface_destroy);
    {
        const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> cairo(cairo_create(surface.get()),
                                                                       &cairo_destroy);
        cairo_scale(cairo.get(), points, points);
        CairoPainter(cairo.get()).paint(drawing);
        if (cairo_status(cairo.get()) == CAIRO_STATUS_NO_MEMORY)
            throw std::bad_alloc();
    }
    cairo_surface_finish(surface.get());
    if (cairo_surface_status(surface.get()) == CAIRO_STATUS_NO_MEMORY)
        throw std::bad_alloc();
    return out;
}

} // namespace easel::paint
