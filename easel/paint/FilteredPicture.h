// Where a filtered group is computed, and how its picture comes to where it shows.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/filter/FilterSpace.h"
#include "easel/paint/pixels/Surface.h"

#include <cstddef>
#include <memory>
#include <optional>

namespace easel::paint {

// No limit to where pixels lie.
inline constexpr PixelRect kAllPixels{
    .left = -(1 << 30), .top = -(1 << 30), .right = 1 << 30, .bottom = 1 << 30};

// The pixels that a filter is computed in. Their grid is that of the sheet they are for, unless the filter's
// units are turned or skewed there, or there would be too many of them.
struct FilterGrid {
    PixelRect place;           // the pixels that are computed
    drawing::Affine unitsTo;   // from the filter's units to the pixels
    drawing::Affine toSheet;   // from the pixels to those of the sheet
    drawing::Affine drawingTo; // from the drawing to the pixels

    friend bool operator==(const FilterGrid&, const FilterGrid&) = default;

    FilterSpace space() const;
};

// The grid that shows the filter on the pixels `seen` of a sheet, to which `toSheet` maps the drawing, with
// at most so many bytes of pictures. Nothing if nothing of it shows.
std::optional<FilterGrid> gridFor(const drawing::Filter& filter, const drawing::Affine& toSheet,
                                  const PixelRect& seen, std::size_t mostBytes);

struct FilteredPicture {
    FilterGrid grid;
    std::shared_ptr<const Surface> pixels;

    // The map from its pixels to where `sheetTo` maps those of the sheet.
    drawing::Affine pixelsTo(const drawing::Affine& sheetTo) const;
};

// Puts the picture in the place of what the surface holds within its clip. Pixel (x, y) of the sheet is pixel
// (x + offset.h, y + offset.v) of the surface.
void put(const FilteredPicture& picture, const SurfaceView& surface, PixelPoint offset);

} // namespace easel::paint
