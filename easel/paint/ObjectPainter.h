// Paints objects in their order, group by group.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/paint/FilterPictures.h"
#include "easel/paint/ObjectPaintSource.h"
#include "easel/paint/Painter.h"
#include "easel/paint/PatternImage.h"

#include <memory>
#include <optional>
#include <span>

namespace easel::paint {

class Layer;

// The whole of which a painter may get only parts to paint. Filters need to know it: what they show must not
// depend on the parts.
struct Sheet {
    drawing::Affine toSheet; // from drawing units to the whole's pixels
    PixelRect seen;          // the whole's pixels
    FilterPictures* filterPictures = nullptr;
};

// Holds scratch memory; use one for each thread.
class ObjectPainter {
  public:
    // Each surface is a whole sheet.
    ObjectPainter() = default;
    // The surfaces show parts of the sheet, moved by whole pixels.
    explicit ObjectPainter(const Sheet& sheet) : sheet_(sheet) {}

    // Back to front, over what the surface's clip holds. `toSurface` maps drawing units to surface pixels.
    void paint(std::span<const drawing::ObjectPtr> objects, const SurfaceView& surface,
               const drawing::Affine& toSurface);

    // What the group, which has a filter, shows of these objects of its own, before it is clipped, masked or
    // made fainter: for the pixels `seen` of a sheet to which `toSheet` maps the drawing.
    static FilteredPicture filteredPicture(const drawing::Group& group,
                                           std::span<const drawing::ObjectPtr> objects,
                                           const drawing::Affine& toSheet, const PixelRect& seen,
                                           FilterPictures& pictures);

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
    // What the group's objects show, filtered if the group has a filter, on a surface that is empty.
    void paintContent(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                      const SurfaceView& surface, const drawing::Affine& toSurface);
    void paintFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                       const SurfaceView& surface, const drawing::Affine& toSurface);
    Sheet sheetFor(const SurfaceView& surface, const drawing::Affine& toSurface);
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
    std::optional<Sheet> sheet_;
    std::unique_ptr<FilterPictures> ownPictures_;
};

} // namespace easel::paint
