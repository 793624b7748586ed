// Objects to pixels: fill and stroke of each, layers where opacity, a clip path, a mask or a blend mode
// concerns several things at once.
#include "easel/paint/ObjectPainter.h"

#include "easel/drawing/Filter.h"
#include "easel/paint/ClipMask.h"
#include "easel/paint/GroupRuns.h"
#include "easel/paint/Layer.h"
#include "easel/paint/ObjectPaintSource.h"
#include "easel/paint/TakesLong.h"
#include "easel/paint/pixels/Parallel.h"
#include "easel/paint/stroke/Stroker.h"

#include <algorithm>

namespace easel::paint {

using drawing::Affine;
using drawing::Object;
using drawing::ObjectPtr;

namespace {

constexpr double kStrokeTolerance = 0.02; // pixels
// Layers in layers beyond this depth are painted straight on, so that hostile files cannot use up the memory.
constexpr std::uint32_t kDeepestLayer = 100;

// Layers that exist at one time take no more than this, which leaves as much to filters. Where they would,
// they are painted in strips.
constexpr std::size_t kMostLayerBytes = std::size_t{96} << 20;

std::size_t bytesOf(const PixelRect& place) {
    return static_cast<std::size_t>(place.width()) * static_cast<std::size_t>(place.height()) *
           static_cast<std::size_t>(kBytesPerPixel);
}

PixelRect pixelsUnder(const drawing::Group* within, ObjectSpan objects, const Affine& toSurface,
                      const PixelRect& limit) {
    drawing::Box box;
    for (const ObjectPtr& object : objects)
        box.add(object->boundsWithin(within));
    return pixelsUnder(box, toSurface, limit);
}

Image imageOf(const drawing::PicturePixels& pixels, const drawing::PlacedPicture& placed) {
    return {pixels.pixels.data(), pixels.width, pixels.height, pixels.width,
            placed.toDrawing,     false,        placed.smooth};
}

// What may show of the group where it is laid on what lies below.
PixelRect pixelsUnder(const drawing::Group& group, ObjectSpan objects, const Affine& toSurface,
                      const PixelRect& limit) {
    PixelRect place = group.filter ? pixelsUnder(group.filter->bounds(), toSurface, limit)
                                   : pixelsUnder(&group, objects, toSurface, limit);
    if (group.clip)
        place = pixelsInside(*group.clip, toSurface, place);
    if (group.mask)
        place = pixelsUnder(nullptr, group.mask->objects, toSurface, place);
    return place;
}

bool shows(const Object& object, drawing::PaintStep step) {
    return step == drawing::PaintStep::Fill ? object.fillPattern != drawing::FillPattern::None
                                            : drawing::strokes(drawing::styleOf(object));
}

} // namespace

void ObjectPainter::paint(ObjectSpan objects, const SurfaceView& surface, const Affine& toSurface) {
    cells_ = {};
    paintWithin(nullptr, objects, surface, toSurface);
}

void ObjectPainter::paintWithin(const drawing::Group* parent, ObjectSpan objects, const SurfaceView& surface,
                                const Affine& toSurface) {
    forEachRun(
        parent, objects,
        [&](const drawing::Group& group, ObjectSpan run) { paintGroup(group, run, surface, toSurface); },
        [&](const Object& object) { paintObject(object, surface, toSurface); });
}

void ObjectPainter::paintGroup(const drawing::Group& group, ObjectSpan objects, const SurfaceView& surface,
                               const Affine& toSurface) {
    if (!(group.opacity > 0))
        return;
    if (group.depth > kDeepestLayer || !isLayer(group))
        return paintWithin(&group, objects, surface, toSurface);
    const PixelRect place = pixelsUnder(group, objects, toSurface, surface.clip());
    if (place.empty())
        return;
    const std::size_t bytes = (group.mask || group.clip ? 2 : 1) * bytesOf(place);
    if (layerBytes_ + bytes > kMostLayerBytes / usefulThreads() && place.height() > 1)
        return paintHalves(group, objects, surface.clippedTo(place), toSurface);
    layerBytes_ += bytes;
    paintLayer(group, objects, place, surface, toSurface);
    layerBytes_ -= bytes;
}

void ObjectPainter::paintHalves(const drawing::Group& group, ObjectSpan objects, const SurfaceView& surface,
                                const Affine& toSurface) {
    PixelRect upper = surface.clip();
    PixelRect lower = surface.clip();
    upper.bottom = lower.top = upper.top + upper.height() / 2;
    paintGroup(group, objects, surface.clippedTo(upper), toSurface);
    paintGroup(group, objects, surface.clippedTo(lower), toSurface);
}

void ObjectPainter::paintLayer(const drawing::Group& group, ObjectSpan objects, const PixelRect& place,
                               const SurfaceView& surface, const Affine& toSurface) {
    Layer layer(place);
    const Affine toLayer = layer.mapped(toSurface);
    paintContent(group, objects, layer.view(), toLayer);
    if (group.clip)
        clipLayer(layer, *group.clip, toLayer, painter_);
    if (group.mask)
        maskLayer(layer, group.mask, toLayer);
    if (group.blend == drawing::BlendMode::Normal)
        layer.layOn(surface, group.opacity);
    else
        layer.blendWith(surface, group.opacity, group.blend);
}

void ObjectPainter::maskLayer(Layer& layer, const drawing::MaskPtr& mask, const Affine& toLayer) {
    Layer shown(layer.place());
    if (takeLong(mask->objects) && sheetFor(shown.view(), toLayer).background)
        showMask(mask, shown.view(), toLayer);
    else
        paintWithin(nullptr, mask->objects, shown.view(), toLayer);
    layer.maskWith(shown, mask->measure);
}

void ObjectPainter::paintObject(const Object& object, const SurfaceView& surface, const Affine& toSurface) {
    if (sheet_)
        endIfUnwanted(sheet_->unwanted);
    const PixelRect place = pixelsUnder(object.paintBounds(), toSurface, surface.clip());
    const double opacity = drawing::styleOf(object).opacity;
    if (place.empty() || !(opacity > 0))
        return;
    const bool both = object.markers ||
                      (shows(object, drawing::PaintStep::Fill) && shows(object, drawing::PaintStep::Stroke));
    if (opacity >= 1 || !both)
        return paintSteps(object, surface, toSurface, opacity);
    Layer layer(place);
    paintSteps(object, layer.view(), layer.mapped(toSurface), 1);
    layer.layOn(surface, opacity);
}

void ObjectPainter::paintSteps(const Object& object, const SurfaceView& surface, const Affine& toSurface,
                               double opacity) {
    if (drawing::styleOf(object).first == drawing::PaintStep::Fill) {
        paintFill(object, surface, toSurface, opacity);
        paintStroke(object, surface, toSurface, opacity);
    } else {
        paintStroke(object, surface, toSurface, opacity);
        paintFill(object, surface, toSurface, opacity);
    }
    if (object.markers)
        paintWithin(nullptr, *object.markers, surface, toSurface);
}

void ObjectPainter::paintFill(const Object& object, const SurfaceView& surface, const Affine& toSurface,
                              double opacity) {
    const HeldPaintSource fill = HeldPaintSource::ofFill(object);
    withSource(fill, object.paintBounds(), surface, toSurface,
               [&](const SurfaceView& part, const PaintSource& source) {
                   painter_.fill(part, object.outline, object.fillRule, toSurface, source,
                                 opacity * drawing::styleOf(object).fillOpacity);
               });
}

// The pen is round in the object's own units only, so the stroke is made there and mapped to the drawing.
void ObjectPainter::paintStroke(const Object& object, const SurfaceView& surface, const Affine& toSurface,
                                double opacity) {
    const HeldPaintSource held = HeldPaintSource::ofStroke(object);
    const Affine units = drawing::penUnitsOf(object);
    const double scale = (toSurface * units).largestScale();
    if (!held.visible() || !units.invertible() || !(scale > 0))
        return;
    const drawing::Stroke& stroke = drawing::styleOf(object).stroke;
    const bool sameUnits = units == Affine{};
    const drawing::Path outline = sameUnits ? object.outline : object.outline.transformed(units.inverse());
    const PolygonSource polygons = [&](const PolygonReceiver& receiver) {
        return strokePolygons(outline, stroke, kStrokeTolerance / scale,
                              [&](std::span<drawing::Point> corners) {
                                  if (!sameUnits)
                                      std::transform(corners.begin(), corners.end(), corners.begin(), units);
                                  return receiver(corners);
                              });
    };
    withSource(held, object.paintBounds(), surface, toSurface,
               [&](const SurfaceView& part, const PaintSource& source) {
                   painter_.fill(part, polygons, drawing::FillRule::NonZero, toSurface, source,
                                 opacity * stroke.opacity);
               });
}

template <class Fill>
void ObjectPainter::withSource(const HeldPaintSource& held, const drawing::Box& filled,
                               const SurfaceView& surface, const Affine& toSurface, const Fill& fill) {
    if (!held.visible())
        return;
    if (!held.picture() && !held.pattern())
        return fill(surface, held.source());
    const bool isLong = held.picture() || takesLong(*held.pattern());
    if (const Sheet sheet = sheetFor(surface, toSurface); isLong && sheet.background)
        withLayer(held, filled, sheet, surface, toSurface, fill);
    else
        withImage(held, filled, surface, toSurface, fill);
}

template <class Fill>
void ObjectPainter::withImage(const HeldPaintSource& held, const drawing::Box& filled,
                              const SurfaceView& surface, const Affine& toSurface, const Fill& fill) {
    if (held.picture()) {
        if (const auto pixels = held.picture()->picture->pixels()) {
            const Image image = imageOf(*pixels, *held.picture());
            fill(surface, PaintSource(&image));
        }
    } else {
        const PatternImage shown(*held.pattern(), filled, pixelsUnder(filled, toSurface, surface.clip()),
                                 toSurface, cells_);
        if (shown.image())
            fill(surface, PaintSource(shown.image()));
    }
}

std::shared_ptr<const Surface>
ObjectPainter::paintedApart(const drawing::Paint& paint, const drawing::Box& filled, const FilterGrid& grid) {
    auto pixels = std::make_shared<Surface>(grid.place.width(), grid.place.height());
    const Affine toPixels = Affine::translation(-grid.place.left, -grid.place.top) * grid.drawingTo;
    withImage(HeldPaintSource::of(paint), filled, pixels->view(), toPixels,
              [&](const SurfaceView& surface, const PaintSource& source) {
                  painter_.fillAll(surface, toPixels, source);
              });
    return pixels;
}

// The pixels are those that the source has anywhere, so that they fill what it would.
template <class Fill>
void ObjectPainter::withLayer(const HeldPaintSource& held, const drawing::Box& filled, const Sheet& sheet,
                              const SurfaceView& surface, const Affine& toSurface, const Fill& fill) {
    const auto shown = sourceLayer(held, filled, sheet, toSurface);
    if (!shown.picture.pixels)
        return;
    const FilterGrid& grid = shown.picture.grid;
    const Image image = imageOf(
        *shown.picture.pixels,
        grid.drawingTo.inverse() * Affine::translation(grid.place.left, grid.place.top), false, !shown.exact);
    const SurfaceView within =
        surface.clippedTo(pixelsUnder(image.box(), toSurface * image.toDrawing, surface.clip()));
    fill(shown.exact ? surface : within, PaintSource(&image));
}

} // namespace easel::paint
