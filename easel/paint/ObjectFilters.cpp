// Groups with filters: their objects are painted apart, filtered, and put where the group shows.
#include "easel/paint/ObjectPainter.h"

#include "easel/drawing/Filter.h"
#include "easel/paint/filter/FilterRun.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

using drawing::Affine;

namespace {

PixelPoint wholePixels(double x, double y) {
    const auto whole = [](double value) {
        return static_cast<int>(std::lrint(std::clamp(value, -1e9, 1e9)));
    };
    return {whole(x), whole(y)};
}

PixelRect movedBy(const PixelRect& rect, PixelPoint by) {
    return {.left = rect.left + by.h,
            .top = rect.top + by.v,
            .right = rect.right + by.h,
            .bottom = rect.bottom + by.v};
}

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
    return {toSurface, wholeOf(surface), sheet_ ? sheet_->filterPictures : ownPictures_.get()};
}

FilteredPicture ObjectPainter::filteredPicture(const drawing::Group& group,
                                               std::span<const drawing::ObjectPtr> objects,
                                               const Affine& toSheet, const PixelRect& seen,
                                               FilterPictures& pictures) {
    const auto paint = [&](const FilterGrid& grid) {
        Surface source(grid.place.width(), grid.place.height());
        const Affine toSource = Affine::translation(-grid.place.left, -grid.place.top) * grid.drawingTo;
        const Sheet ofSource{toSource, wholeOf(source.view()), &pictures};
        ObjectPainter(ofSource).paintWithin(&group, objects, source.view(), toSource);
        return filtered(*group.filter, std::move(source), grid.space(),
                        [&](const drawing::ImageEffect& image) {
                            Surface shown(grid.place.width(), grid.place.height());
                            ObjectPainter(ofSource).paint(*image.objects, shown.view(), toSource);
                            return shown;
                        });
    };
    return pictures.picture(group, objects, toSheet, seen, paint);
}

void ObjectPainter::paintFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects,
                                  const SurfaceView& surface, const Affine& toSurface) {
    const Sheet sheet = sheetFor(surface, toSurface);
    // A drawing that is scrolled by whole pixels shows the same picture of the group.
    const PixelPoint origin = wholePixels(std::floor(sheet.toSheet.e), std::floor(sheet.toSheet.f));
    const PixelPoint back{-origin.h, -origin.v};
    const PixelPoint offset =
        wholePixels(toSurface.e - sheet.toSheet.e + origin.h, toSurface.f - sheet.toSheet.f + origin.v);
    const FilteredPicture picture =
        filteredPicture(group, objects, Affine::translation(back.h, back.v) * sheet.toSheet,
                        movedBy(sheet.seen, back), *sheet.filterPictures);
    if (picture.pixels)
        put(picture, surface, offset);
}

} // namespace easel::paint
