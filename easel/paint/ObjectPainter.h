// Paints objects in their order, group by group.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/paint/ObjectPaintSource.h"
#include "easel/paint/Painter.h"
#include "easel/paint/PatternImage.h"

#include <span>

namespace easel::paint {

class Layer;

// Holds scratch memory; use one for each thread.
class ObjectPainter {
  public:
    // Back to front, over what the surface's clip holds. `toSurface` maps drawing units to surface pixels.
    void paint(std::span<const drawing::ObjectPtr> objects, const SurfaceView& surface,
               const drawing::Affine& toSurface);

  private:
    void paintWithin(const drawing::Group* parent, std::span<const drawing::ObjectPtr> objects,
                     const SurfaceView& surface, const drawing::Affine& toSurface);
    void paintGroup(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                    const SurfaceView& surface, const drawing::Affine& toSurface);
    // One half of the rows after the other.
    void paintHalves(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                     const SurfaceView& surface, const drawing::Affine& toSurface);
    void paintLayer(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                    const PixelRect& place, const SurfaceView& surface, const drawing::Affine& toSurface);
    void maskLayer(Layer& layer, const drawing::Mask& mask, const drawing::Affine& toLayer);
    void paintObject(const drawing::Object& object, const SurfaceView& surface,
                     const drawing::Affine& toSurface);
    void paintSteps(const drawing::Object& object, const SurfaceView& surface,
                    const drawing::Affine& toSurface, double opacity);
    void paintFill(const drawing::Object& object, const SurfaceView& surface,
                   const drawing::Affine& toSurface, double opacity);
    void paintStroke(const drawing::Object& object, const SurfaceView& surface,
                     const drawing::Affine& toSurface, double opacity);

    // Calls `fill` with the source as the painter takes it, or not at all if there is nothing to show.
    template <class Fill>
    void withSource(const HeldPaintSource& held, const drawing::Object& object, const SurfaceView& surface,
                    const drawing::Affine& toSurface, const Fill& fill);

    Painter painter_;
    std::size_t layerBytes_ = 0; // of the groups that are being painted
    PatternCells cells_;
};

} // namespace easel::paint
