// What filters show, as pictures.
#include "easel/drawing/Filter.h"
#include "easel/export/CairoPainter.h"
#include "easel/paint/Layer.h"
#include "easel/paint/ObjectPainter.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>

namespace easel::exports {

using drawing::Affine;

namespace {

using ImageSurface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

// A copy, since Cairo reads the pixels only when the page is written.
ImageSurface copyOf(const paint::Surface& pixels) {
    ImageSurface image(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels.width(), pixels.height()),
                       &cairo_surface_destroy);
    if (cairo_surface_status(image.get()) != CAIRO_STATUS_SUCCESS)
        throw std::bad_alloc();
    unsigned char* const data = cairo_image_surface_get_data(image.get());
    const int stride = cairo_image_surface_get_stride(image.get());
    for (int y = 0; y < pixels.height(); ++y)
        std::copy_n(reinterpret_cast<const unsigned char*>(pixels.row(y)), pixels.width() * 4,
                    data + static_cast<std::ptrdiff_t>(y) * stride);
    cairo_surface_mark_dirty(image.get());
    return image;
}

// The luminance of each pixel, by the weights of SVG's luminanceToAlpha, in the place of its opacity.
paint::Surface luminanceAsAlpha(const paint::Surface& picture) {
    paint::Surface result(picture.width(), picture.height());
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const std::uint32_t pixel = picture.row(y)[x];
            const double luminance =
                0.2125 * (pixel >> 16 & 0xFF) + 0.7154 * (pixel >> 8 & 0xFF) + 0.0721 * (pixel & 0xFF);
            result.row(y)[x] = static_cast<std::uint32_t>(std::lround(luminance)) << 24;
        }
    return result;
}

} // namespace

void CairoPainter::paintObjects(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects) {
    if (group.filter)
        paintFiltered(group, objects);
    else
        paintWithin(&group, objects);
}

void CairoPainter::paintFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects) {
    for (std::size_t i = 0; i < objects.size(); ++i)
        painted_.next();
    cairo_matrix_t toTarget;
    cairo_get_matrix(cairo_, &toTarget);
    const double scale = detail_ * std::hypot(toTarget.xx, toTarget.yx);
    drawing::Box seen;
    cairo_clip_extents(cairo_, &seen.left, &seen.top, &seen.right, &seen.bottom);
    const Affine toPixels = Affine::scaling(scale, scale);
    const auto picture = paint::ObjectPainter::filteredPicture(
        group, objects, toPixels, paint::pixelsUnder(seen, toPixels, paint::kAllPixels), filterPictures_);
    if (!picture.pixels || cairo_status(cairo_) != CAIRO_STATUS_SUCCESS)
        return;
    const ImageSurface image =
        luminanceAsAlpha_ ? copyOf(luminanceAsAlpha(*picture.pixels)) : copyOf(*picture.pixels);
    const Affine toDrawing = picture.pixelsTo(toPixels.inverse());
    const cairo_matrix_t matrix = {toDrawing.a, toDrawing.b, toDrawing.c,
                                   toDrawing.d, toDrawing.e, toDrawing.f};
    cairo_save(cairo_);
    cairo_transform(cairo_, &matrix);
    cairo_set_source_surface(cairo_, image.get(), 0, 0);
    cairo_paint(cairo_);
    cairo_restore(cairo_);
}

} // namespace easel::exports
