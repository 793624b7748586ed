// Clip paths as masks: the shapes of a path are painted over each other, those that are clipped themselves by
// way of a layer of their own.
#include "easel/paint/ClipMask.h"

namespace easel::paint {

namespace {

// Clips of clips beyond this depth no longer narrow anything; no drawing made by hand comes near it.
constexpr int kDeepest = 64;

void applyClip(Layer& layer, const drawing::ClipPath& clip, const drawing::Affine& toLayer, Painter& painter,
               int depth);

void paintShape(const SurfaceView& view, const drawing::ClipShape& shape, const drawing::Affine& toLayer,
                Painter& painter, int depth) {
    if (!shape.clip || depth == kDeepest)
        return painter.fill(view, shape.outline, shape.rule, toLayer, drawing::ColorPaint{});
    const PixelRect place = pixelsUnder(shape.outline.bounds(), toLayer, view.clip());
    if (place.empty())
        return;
    Layer narrowed(place);
    const drawing::Affine toNarrowed = narrowed.mapped(toLayer);
    painter.fill(narrowed.view(), shape.outline, shape.rule, toNarrowed, drawing::ColorPaint{});
    applyClip(narrowed, *shape.clip, toNarrowed, painter, depth + 1);
    narrowed.layOn(view, 1);
}

void applyClip(Layer& layer, const drawing::ClipPath& clip, const drawing::Affine& toLayer, Painter& painter,
               int depth) {
    Layer mask(layer.place());
    for (const drawing::ClipShape& shape : clip.shapes)
        paintShape(mask.view(), shape, toLayer, painter, depth);
    layer.maskWith(mask);
    if (clip.clip && depth < kDeepest)
        applyClip(layer, *clip.clip, toLayer, painter, depth + 1);
}

} // namespace

PixelRect pixelsInside(const drawing::ClipPath& clip, const drawing::Affine& toSurface,
                       const PixelRect& limit) {
    drawing::Box box;
    for (const drawing::ClipShape& shape : clip.shapes)
        box.add(shape.outline.bounds());
    return pixelsUnder(box, toSurface, limit);
}

void clipLayer(Layer& layer, const drawing::ClipPath& clip, const drawing::Affine& toLayer,
               Painter& painter) {
    applyClip(layer, clip, toLayer, painter, 0);
}

} // namespace easel::paint
