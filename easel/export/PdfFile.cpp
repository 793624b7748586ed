// Writes PDF by way of Cairo.
#include "easel/export/PdfFile.h"

#include "easel/export/CairoPainter.h"
#include "easel/memory/LibraryCall.h"

#include <cairo-pdf.h>
#include <cairo.h>

#include <memory>
#include <new>

namespace easel::exports {

namespace {

// Cairo keeps what is painted until the page is complete, and then writes.
constexpr double kShareOfPainting = 0.15;
// With this many bytes for each object, the writing counts as half done.
constexpr double kHalfOfAnObject = 30;

struct Output {
    Progress progress;
    double halfBytes = 1;
    files::Bytes bytes;
    std::exception_ptr failure;

    // Nears 1, however many bytes there will be.
    double done() const {
        const auto size = static_cast<double>(bytes.size());
        return size / (size + halfBytes);
    }
};

// No exception may pass through Cairo.
cairo_status_t append(void* closure, const unsigned char* data, unsigned int size) {
    auto& out = *static_cast<Output*>(closure);
    try {
        out.bytes.insert(out.bytes.end(), data, data + size);
        out.progress.tell(out.done());
        return CAIRO_STATUS_SUCCESS;
    } catch (...) {
        out.failure = std::current_exception();
        return CAIRO_STATUS_WRITE_ERROR;
    }
}

void check(const Output& out, cairo_status_t status) {
    if (out.failure)
        std::rethrow_exception(out.failure);
    if (status == CAIRO_STATUS_NO_MEMORY)
        throw std::bad_alloc();
}

} // namespace

PdfPage pageOf(const drawing::Drawing& drawing, double scale, double dotsPerInch) {
    const double points = kPointsPerUnit * scale;
    return {drawing.width() * points, drawing.height() * points, 0, 0, points, dotsPerInch};
}

files::Bytes encodePdf(const drawing::Drawing& drawing, const PdfPage& page, const Progress& progress) {
    // Cairo takes some refusals for success.
    const memory::LibraryCall inCairo;
    Output out{progress.part(kShareOfPainting, 1),
               kHalfOfAnObject * static_cast<double>(drawing.size() + 1),
               {},
               {}};
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
        cairo_pdf_surface_create_for_stream(&append, &out, page.width, page.height), &cairo_surface_destroy);
    {
        const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> cairo(cairo_create(surface.get()),
                                                                       &cairo_destroy);
        cairo_translate(cairo.get(), page.left, page.top);
        cairo_scale(cairo.get(), page.pointsAUnit, page.pointsAUnit);
        cairo_rectangle(cairo.get(), 0, 0, drawing.width(), drawing.height());
        cairo_clip(cairo.get());
        CairoPainter(cairo.get(), page.dotsPerInch / 72).paint(drawing, progress.part(0, kShareOfPainting));
        check(out, cairo_status(cairo.get()));
    }
    cairo_surface_finish(surface.get());
    check(out, cairo_surface_status(surface.get()));
    inCairo.check();
    return std::move(out.bytes);
}

} // namespace easel::exports
