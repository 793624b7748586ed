// Paints objects in their order, group by group.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/paint/BackgroundLayers.h"
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
    BackgroundLayers* background = nullptr; // paints what takes long; null: all is painted at once
    const Unwanted* unwanted = nullptr;     // ends the painting early, by GivenUp; may be null
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
                                           FilterPictures& pictures, const Unwanted* unwanted = nullptr);

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
    void maskLayer(Layer& layer, const drawing::MaskPtr& mask, const drawing::Affine& toLayer);
    // What the group's objects show, filtered if the group has a filter, on a surface that is empty.
    void paintContent(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                      const SurfaceView& surface, const drawing::Affine& toSurface);
    void paintFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                       const SurfaceView& surface, const drawing::Affine& toSurface);
    Sheet sheetFor(const SurfaceView& surface, const drawing::Affine& toSurface);
    // What takes long, as far as it is there; else as it was before, or plainly.
    void showFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                      const SurfaceView& surface, const drawing::Affine& toSurface);
    void showMask(const drawing::MaskPtr& mask, const SurfaceView& surface, const drawing::Affine& toSurface);
    void paintPlainly(std::span<const drawing::ObjectPtr> objects, const SurfaceView& surface,
                      const drawing::Affine& toSurface);
    void showLayer(const BackgroundLayers::Shown& shown, const SurfaceView& surface,
                   const drawing::Affine& toSurface, PixelPoint offset);
    static BackgroundLayers::Shown sourceLayer(const HeldPaintSource& held, const drawing::Box& filled,
                                               const Sheet& sheet, const drawing::Affine& toSurface);
    template <class Fill>
    void withLayer(const HeldPaintSource& held, const drawing::Box& filled, const Sheet& sheet,
                   const SurfaceView& surface, const drawing::Affine& toSurface, const Fill& fill);
    void paintObject(const drawing::Object& object, const SurfaceView& surface,
                     const drawing::Affine& toSurface);
    void paintSteps(const drawing::Object& object, const SurfaceView& surface,
                    const drawing::Affine& toSurface, double opacity);
    void paintFill(const drawing::Object& object, const SurfaceView& surface,
                   const drawing::Affine& toSurface, double opacity);
    void paintStroke(const drawing::Object& object, const SurfaceView& surface,
                     const drawing::Affine& toSurface, double opacity);

    // Calls fill(the surface, the source as the painter takes it), or nothing if there is nothing to show in
    // the box that is filled.
    template <class Fill>
    void withSource(const HeldPaintSource& held, const drawing::Box& filled, const SurfaceView& surface,
                    const drawing::Affine& toSurface, const Fill& fill);
    template <class Fill>
    void withImage(const HeldPaintSource& held, const drawing::Box& filled, const SurfaceView& surface,
                   const drawing::Affine& toSurface, const Fill& fill);
    // What the picture or pattern shows in the box, on all pixels of the grid.
    std::shared_ptr<const Surface> paintedApart(const drawing::Paint& paint, const drawing::Box& filled,
                                                const FilterGrid& grid);

    Painter painter_;
    std::size_t layerBytes_ = 0; // of the groups that are being painted
    PatternCells cells_;
    std::optional<Sheet> sheet_;
    std::unique_ptr<FilterPictures> ownPictures_;
};

} // namespace easel::paint
