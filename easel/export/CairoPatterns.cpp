// Patterns for Cairo: the cell as a recording that repeats, so that it keeps its outlines.
#include "easel/drawing/Object.h"
#include "easel/drawing/Pattern.h"
#include "easel/export/CairoGeometry.h"
#include "easel/export/CairoPainter.h"

#include <cairo.h>

namespace easel::exports {

using drawing::Affine;

namespace {

// Cairo repeats recordings by whole units, so a cell is made this many wide and high.
constexpr double kUnits = 4096;

} // namespace

bool CairoPainter::setPattern(const drawing::Pattern& pattern) {
    const drawing::Box& cell = pattern.cell;
    const Affine toUnits = Affine::scaling(kUnits / cell.width(), kUnits / cell.height()) *
                           Affine::translation(-cell.left, -cell.top);
    const Affine toPattern = toUnits * pattern.toDrawing.inverse();
    if (!pattern.toDrawing.invertible() || !toPattern.invertible())
        return false;
    const cairo_rectangle_t extents{0, 0, kUnits, kUnits};
    cairo_surface_t* const recording = cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents);
    cairo_t* const inner = cairo_create(recording);
    const cairo_matrix_t toRecording = matrixOf(toUnits);
    cairo_transform(inner, &toRecording);
    CairoPainter painter(inner, detail_);
    painter.luminanceAsAlpha_ = luminanceAsAlpha_;
    painter.paintWithin(nullptr, *pattern.objects);
    cairo_destroy(inner);

    const Pattern source(cairo_pattern_create_for_surface(recording), &cairo_pattern_destroy);
    cairo_surface_destroy(recording);
    const cairo_matrix_t matrix = matrixOf(toPattern);
    cairo_pattern_set_matrix(source.get(), &matrix);
    cairo_pattern_set_extend(source.get(), CAIRO_EXTEND_REPEAT);
    cairo_set_source(cairo_, source.get());
    return true;
}

} // namespace easel::exports
