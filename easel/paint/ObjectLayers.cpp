// Filtered groups, masks and pictures of a canvas: painted in the background, and shown as they were until
// they are there.
#include "easel/drawing/Filter.h"
#include "easel/paint/FilterPictures.h"
#include "easel/paint/Layer.h"
#include "easel/paint/ObjectPainter.h"
#include "easel/paint/SheetPart.h"
#include "easel/paint/TakesLong.h"

namespace easel::paint {

using drawing::Affine;

namespace {

// So many objects take no longer than a frame.
constexpr std::size_t kMostPlainly = 2000;

// Its objects keep the group.
std::shared_ptr<const void> identityOf(const drawing::Group& group) {
    return {std::shared_ptr<const void>(), &group};
}

drawing::Box boundsOf(std::span<const drawing::ObjectPtr> objects) {
    drawing::Box box;
    for (const drawing::ObjectPtr& object : objects)
        box.add(object->shownBounds());
    return box;
}

} // namespace

void ObjectPainter::showFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                                 const SurfaceView& surface, const Affine& toSurface) {
    const SheetPart part = steadyPartOf(sheet_->toSheet, sheet_->seen, toSurface);
    const auto grid = FilterPictures::gridOf(*group.filter, part.toSheet, part.seen);
    if (!grid)
        return;
    const auto painting = [&] {
        return [&group, kept = std::vector<drawing::ObjectPtr>(objects.begin(), objects.end()),
                part](const Unwanted& unwanted) {
            FilterPictures pictures;
            return filteredPicture(group, kept, part.toSheet, part.seen, pictures, &unwanted).pixels;
        };
    };
    const auto shown =
        sheet_->background->layer({identityOf(group), objects, *grid, group.filter->bounds()}, painting);
    if (shown.picture.pixels)
        showLayer(shown, surface, toSurface, part.offset);
    else
        paintPlainly(objects, surface, toSurface);
}

void ObjectPainter::showMask(const drawing::MaskPtr& mask, const SurfaceView& surface,
                             const Affine& toSurface) {
    const SheetPart part = steadyPartOf(sheet_->toSheet, sheet_->seen, toSurface);
    const drawing::Box bounds = boundsOf(mask->objects);
    const PixelRect place = pixelsUnder(bounds, part.toSheet, part.seen);
    if (place.empty())
        return;
    const auto painting = [&] {
        return [mask, place, toSheet = part.toSheet](const Unwanted& unwanted) {
            auto pixels = std::make_shared<Surface>(place.width(), place.height());
            const Affine toPixels = Affine::translation(-place.left, -place.top) * toSheet;
            FilterPictures pictures;
            ObjectPainter({toPixels, pixels->view().clip(), &pictures, nullptr, &unwanted})
                .paint(mask->objects, pixels->view(), toPixels);
            return std::shared_ptr<const Surface>(pixels);
        };
    };
    const auto shown = sheet_->background->layer({mask, {}, {place, {}, {}, part.toSheet}, bounds}, painting);
    if (shown.picture.pixels)
        showLayer(shown, surface, toSurface, part.offset);
}

BackgroundLayers::Shown ObjectPainter::sourceLayer(const HeldPaintSource& held, const drawing::Box& filled,
                                                   const Sheet& sheet, const Affine& toSurface) {
    const SheetPart part = steadyPartOf(sheet.toSheet, sheet.seen, toSurface);
    const PixelRect place = pixelsUnder(filled, part.toSheet, part.seen);
    if (place.empty())
        return {};
    const auto layerOf = [&](const auto& paint, BackgroundLayers::Kind kind) {
        const FilterGrid grid{place, {}, {}, part.toSheet};
        return sheet.background->layer({paint, {}, grid, filled, kind}, [&] {
            return [paint, filled, grid](const Unwanted&) {
                return ObjectPainter().paintedApart(drawing::Paint(paint), filled, grid);
            };
        });
    };
    return held.picture() ? layerOf(held.picture(), BackgroundLayers::Kind::Picture)
                          : layerOf(held.pattern(), BackgroundLayers::Kind::Objects);
}

void ObjectPainter::paintPlainly(std::span<const drawing::ObjectPtr> objects, const SurfaceView& surface,
                                 const Affine& toSurface) {
    if (objects.size() > kMostPlainly)
        return;
    for (const drawing::ObjectPtr& object : objects)
        if (isPlain(*object))
            paintObject(*object, surface, toSurface);
}

void ObjectPainter::showLayer(const BackgroundLayers::Shown& shown, const SurfaceView& surface,
                              const Affine& toSurface, PixelPoint offset) {
    if (shown.exact)
        return put(shown.picture, surface, offset);
    const FilterGrid& grid = shown.picture.grid;
    const Affine place = Affine::translation(grid.place.left, grid.place.top);
    const Image image = imageOf(*shown.picture.pixels, place, false, true);
    painter_.fill(surface, drawing::rectanglePath(image.box()).transformed(place), drawing::FillRule::NonZero,
                  toSurface * grid.drawingTo.inverse(), PaintSource(&image));
}

} // namespace easel::paint
