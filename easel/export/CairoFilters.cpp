// What filters show, as pictures.
#include "easel/drawing/Filter.h"
#include "easel/drawing/Luminance.h"
#include "easel/export/CairoGeometry.h"
#include "easel/export/CairoImage.h"
#include "easel/export/CairoPainter.h"
#include "easel/paint/Layer.h"
#include "easel/paint/ObjectPainter.h"

#include <cairo.h>

#include <cmath>

namespace easel::exports {

using drawing::Affine;

namespace {

// The luminance of each pixel, by the weights of SVG's luminanceToAlpha, in the place of its opacity.
paint::Surface luminanceAsAlpha(const paint::Surface& picture) {
    paint::Surface result(picture.width(), picture.height());
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const std::uint32_t pixel = picture.row(y)[x];
            const double luminance =
                drawing::luminanceOf(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
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
    const Affine toTarget = mapToTarget(cairo_);
    const double scale = detail_ * std::hypot(toTarget.a, toTarget.b);
    const Affine toPixels = Affine::scaling(scale, scale);
    const auto picture = paint::ObjectPainter::filteredPicture(
        group, objects, toPixels, paint::pixelsUnder(shownBox(cairo_), toPixels, paint::kAllPixels),
        filterPictures_);
    if (!picture.pixels || cairo_status(cairo_) != CAIRO_STATUS_SUCCESS)
        return;
    const CairoImage image =
        luminanceAsAlpha_ ? imageOf(luminanceAsAlpha(*picture.pixels)) : imageOf(*picture.pixels);
    const cairo_matrix_t matrix = matrixOf(picture.pixelsTo(toPixels.inverse()));
    cairo_save(cairo_);
    cairo_transform(cairo_, &matrix);
    cairo_set_source_surface(cairo_, image.get(), 0, 0);
    cairo_paint(cairo_);
    cairo_restore(cairo_);
}

} // namespace easel::exports
