// Masks for Cairo, which knows those of alpha only: outlines where alpha can tell what the mask shows, and
// else a picture.
#include "easel/export/CairoGeometry.h"
#include "easel/export/CairoImage.h"
#include "easel/export/CairoPainter.h"
#include "easel/export/MaskAlpha.h"
#include "easel/paint/Layer.h"
#include "easel/paint/RenderDrawing.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::exports {

using drawing::Affine;

namespace {

// No picture of a mask has more pixels across or down.
constexpr double kLargestSide = 4096;

// What the mask may show of what is not clipped, in the drawing.
drawing::Box placeOf(const drawing::Mask& mask, cairo_t* cairo) {
    drawing::Box objects;
    for (const drawing::ObjectPtr& object : mask.objects)
        objects.add(object->paintBounds());
    return objects.intersection(shownBox(cairo));
}

} // namespace

CairoPainter::Pattern CairoPainter::maskPattern(const drawing::Mask& mask) {
    const bool luminance = mask.measure != drawing::MaskMeasure::Alpha;
    if (luminance && !alphaTellsLuminance(mask))
        return maskPicture(mask);
    cairo_push_group(cairo_);
    const bool outside = std::exchange(luminanceAsAlpha_, luminance);
    paintWithin(nullptr, mask.objects);
    luminanceAsAlpha_ = outside;
    return {cairo_pop_group(cairo_), &cairo_pattern_destroy};
}

CairoPainter::Pattern CairoPainter::maskPicture(const drawing::Mask& mask) {
    const drawing::Box box = placeOf(mask, cairo_);
    if (box.empty())
        return {cairo_pattern_create_rgba(0, 0, 0, 0), &cairo_pattern_destroy};
    const double asked = mapToTarget(cairo_).largestScale() * detail_;
    const double scale = std::min(asked, kLargestSide / std::max({box.width(), box.height(), 1.0}));
    const Affine toPicture = Affine::scaling(scale, scale) * Affine::translation(-box.left, -box.top);
    const paint::PixelRect place{.right = static_cast<int>(std::ceil(box.width() * scale)) + 1,
                                 .bottom = static_cast<int>(std::ceil(box.height() * scale)) + 1};
    paint::Layer shown(place);
    paint::renderObjects(mask.objects, shown.view(), toPicture);
    paint::Layer white(place);
    for (int y = 0; y < place.bottom; ++y)
        std::fill_n(white.view().row(y), place.right, 0xFFFFFFFF);
    white.maskWith(shown, mask.measure);

    const CairoImage image = imageOf(white.pixels());
    Pattern pattern(cairo_pattern_create_for_surface(image.get()), &cairo_pattern_destroy);
    const cairo_matrix_t matrix = matrixOf(toPicture);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    return pattern;
}

} // namespace easel::exports
