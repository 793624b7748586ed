// Groups with filters: their objects are painted apart, filtered, and put where the group shows.
#include "easel/paint/ObjectPainter.h"

#include "easel/drawing/Filter.h"
#include "easel/paint/SheetPart.h"
#include "easel/paint/filter/FilterRun.h"

namespace easel::paint {

using drawing::Affine;

namespace {

PixelRect wholeOf(const SurfaceView& surface) {
    return {.right = surface.width(), .bottom = surface.height()};
}

} // namespace

void ObjectPainter::paintContent(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                                 const SurfaceView& surface, const Affine& toSurface) {
    if (group.filter)
        paintFiltered(group, objects, surface, toSurface);
    else
        paintWithin(&group, objects, surface, toSurface);
}

// Surfaces that are no parts of the sheet, as their maps say, are sheets of their own.
Sheet ObjectPainter::sheetFor(const SurfaceView& surface, const Affine& toSurface) {
    const auto isPart = [&](const Affine& sheet) {
        return sheet.a == toSurface.a && sheet.b == toSurface.b && sheet.c == toSurface.c &&
               sheet.d == toSurface.d;
    };
    if (sheet_ && isPart(sheet_->toSheet))
        return *sheet_;
    if (!sheet_ && !ownPictures_)
        ownPictures_ = std::make_unique<FilterPictures>();
    return {toSurface, wholeOf(surface), sheet_ ? sheet_->filterPictures : ownPictures_.get(), nullptr,
            sheet_ ? sheet_->unwanted : nullptr};
}

FilteredPicture ObjectPainter::filteredPicture(const drawing::Group& group,
                                               std::span<const drawing::ObjectPtr> objects,
                                               const Affine& toSheet, const PixelRect& seen,
                                               FilterPictures& pictures, const Unwanted* unwanted) {
    const auto paint = [&](const FilterGrid& grid) {
        Surface source(grid.place.width(), grid.place.height());
        const Affine toSource = Affine::translation(-grid.place.left, -grid.place.top) * grid.drawingTo;
        const Sheet ofSource{toSource, wholeOf(source.view()), &pictures, nullptr, unwanted};
        ObjectPainter(ofSource).paintWithin(&group, objects, source.view(), toSource);
        const auto paintImage = [&](const drawing::ImageEffect& image) {
            Surface shown(grid.place.width(), grid.place.height());
            ObjectPainter(ofSource).paint(*image.objects, shown.view(), toSource);
            return shown;
        };
        return filtered(*group.filter, std::move(source), grid.space(), paintImage, unwanted);
    };
    return pictures.picture(group, objects, toSheet, seen, paint);
}

void ObjectPainter::paintFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                                  const SurfaceView& surface, const Affine& toSurface) {
    const Sheet sheet = sheetFor(surface, toSurface);
    if (sheet.background)
        return showFiltered(group, objects, surface, toSurface);
    // A drawing that is scrolled by whole pixels shows the same picture of the group.
    const SheetPart part = partOf(sheet.toSheet, sheet.seen, toSurface);
    const FilteredPicture picture =
        filteredPicture(group, objects, part.toSheet, part.seen, *sheet.filterPictures, sheet.unwanted);
    if (picture.pixels)
        put(picture, surface, part.offset);
}

} // namespace easel::paint
