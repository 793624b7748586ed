// The way of a fill: outline to edges, edges to rows, rows to the shader of the ink.
#include "easel/paint/Painter.h"

#include "easel/paint/OutlineEdges.h"
#include "easel/paint/PointShader.h"

#include <cmath>

namespace easel::paint {

namespace {

using drawing::Affine;

double sanitised(double opacity) {
    return std::isnan(opacity) ? 1 : std::clamp(opacity, 0.0, 1.0);
}

// Calls `use` with the shader for the ink.
template <class Use>
void withShader(const SurfaceView& surface, const Affine& toSurface, const Ink& ink, double opacity,
                Use&& use) {
    if (const auto* gradient = std::get_if<const Gradient*>(&ink)) {
        PointShader shader(surface, **gradient, parameterMapOf(**gradient, toSurface), sanitised(opacity));
        return use(shader);
    }
    const auto& color = std::get<drawing::ColorPaint>(ink);
    const Gradient flat{
        drawing::LinearGeometry{}, {}, drawing::Spread::Pad, Ramp({{0, color.color, color.opacity}})};
    PointShader shader(surface, flat, FlatMap{}, sanitised(opacity));
    use(shader);
}

} // namespace

void Painter::fill(const SurfaceView& surface, const drawing::Path& shape, drawing::FillRule rule,
                   const Affine& toSurface, const Ink& ink, double opacity) {
    rasteriser_.begin(surface.clip());
    addOutline(rasteriser_, shape, toSurface);
    withShader(surface, toSurface, ink, opacity, [&](RowSink& shader) { rasteriser_.sweep(rule, shader); });
}

void Painter::fill(const SurfaceView& surface, std::span<const drawing::Contour> polygons,
                   drawing::FillRule rule, const Affine& toSurface, const Ink& ink, double opacity) {
    rasteriser_.begin(surface.clip());
    addOutline(rasteriser_, polygons, toSurface);
    withShader(surface, toSurface, ink, opacity, [&](RowSink& shader) { rasteriser_.sweep(rule, shader); });
}

void Painter::fillAll(const SurfaceView& surface, const Affine& toSurface, const Ink& ink, double opacity) {
    const PixelBox& clip = surface.clip();
    if (clip.empty())
        return;
    const CoverageRun whole[] = {{clip.left, clip.right, kFullCoverage}};
    withShader(surface, toSurface, ink, opacity, [&](RowSink& shader) {
        for (int y = clip.top; y < clip.bottom; ++y)
            shader.row(y, whole);
    });
}

} // namespace easel::paint
