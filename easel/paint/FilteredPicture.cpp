// Where a filtered group is computed, and how its picture comes to where it shows. As SVG 1.1, 15.5,
// suggests, a filter whose units are turned or skewed is computed in pixels along its own axes.
#include "easel/paint/FilteredPicture.h"

#include "easel/paint/Layer.h"
#include "easel/paint/filter/FilterReach.h"
#include "easel/paint/filter/FilterUses.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace easel::paint {

namespace {

using drawing::Affine;
using drawing::Box;
using drawing::Filter;
using drawing::Point;

// A grid along the axes of the filter's units, whose origin lies where that of the sheet does. Where the
// units are not turned and nothing is made coarser, it is the sheet's own.
std::optional<FilterGrid> gridAlong(const Filter& filter, const Affine& toSheet, double fineness) {
    const Affine unitsToSheet = toSheet * filter.toDrawing;
    const Affine scale = Affine::scaling(length(unitsToSheet.direction({1, 0})) * fineness,
                                         length(unitsToSheet.direction({0, 1})) * fineness);
    if (!scale.invertible() || !unitsToSheet.invertible())
        return std::nullopt;
    FilterGrid grid;
    const Affine linear{unitsToSheet.a, unitsToSheet.b, unitsToSheet.c, unitsToSheet.d, 0, 0};
    const Affine turn = linear * scale.inverse();
    const bool same = std::abs(turn.a - 1) < 1e-9 && std::abs(turn.d - 1) < 1e-9 && std::abs(turn.b) < 1e-9 &&
                      std::abs(turn.c) < 1e-9;
    grid.toSheet = same ? Affine() : turn;
    const Affine fromSheet = grid.toSheet.inverse();
    grid.unitsTo = same ? unitsToSheet : fromSheet * unitsToSheet;
    // Roundings must not turn what lies along the axes.
    grid.unitsTo.b = grid.unitsTo.c = 0;
    grid.drawingTo = same ? toSheet : fromSheet * toSheet;
    return grid;
}

double areaOf(const PixelRect& rect) {
    return rect.empty() ? 0 : static_cast<double>(rect.width()) * rect.height();
}

// What has to be computed: the whole region if it is not larger than what is seen, so that it serves wherever
// it is scrolled to, else what has a part in the pixels seen.
PixelRect placeIn(const FilterGrid& grid, const Filter& filter, const PixelRect& seen) {
    const PixelRect whole = pixelsUnder(filter.region, grid.unitsTo, kAllPixels);
    const Point scale = grid.unitsTo.direction({1, 1});
    const auto reach = reachOf(filter, scale);
    if (!reach || areaOf(whole) <= areaOf(seen))
        return whole;
    const Box box{static_cast<double>(seen.left), static_cast<double>(seen.top),
                  static_cast<double>(seen.right), static_cast<double>(seen.bottom)};
    const PixelRect near = pixelsUnder(box, grid.toSheet.inverse(), kAllPixels);
    const auto across = static_cast<int>(std::min(std::ceil(reach->x), 1e8)) + 1;
    const auto down = static_cast<int>(std::min(std::ceil(reach->y), 1e8)) + 1;
    return whole.intersection({.left = near.left - across,
                               .top = near.top - down,
                               .right = near.right + across,
                               .bottom = near.bottom + down});
}

} // namespace

Affine FilteredPicture::pixelsTo(const Affine& sheetTo) const {
    return sheetTo * grid.toSheet * Affine::translation(grid.place.left, grid.place.top);
}

FilterSpace FilterGrid::space() const {
    return {place.width(), place.height(), Affine::translation(-place.left, -place.top) * unitsTo};
}

std::optional<FilterGrid> gridFor(const Filter& filter, const Affine& toSheet, const PixelRect& seen,
                                  std::size_t mostBytes) {
    const auto mostPixels = static_cast<double>(mostBytes) /
                            static_cast<double>(mostPictures(filter) * std::size_t{kBytesPerPixel});
    // Each try comes near the limit from what the last one would have taken.
    double fineness = 1;
    for (int tries = 0; tries < 20; ++tries) {
        auto grid = gridAlong(filter, toSheet, fineness);
        if (!grid)
            return std::nullopt;
        grid->place = placeIn(*grid, filter, seen);
        const double pixels = areaOf(grid->place);
        if (!(pixels > 0))
            return std::nullopt;
        if (pixels <= mostPixels)
            return grid;
        fineness *= std::sqrt(mostPixels / pixels) * 0.95;
    }
    return std::nullopt;
}

namespace {

// A point of a picture between its pixels: each channel from the four pixels around, by their nearness.
std::uint32_t sampled(const FilteredPicture& picture, Point at) {
    const Surface& pixels = *picture.pixels;
    const double x = at.x - 0.5 - picture.grid.place.left;
    const double y = at.y - 0.5 - picture.grid.place.top;
    if (!(x > -1 && y > -1 && x < pixels.width() && y < pixels.height()))
        return 0;
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const auto right = static_cast<std::uint32_t>(std::lround((x - left) * 256));
    const auto below = static_cast<std::uint32_t>(std::lround((y - top) * 256));
    const auto pixel = [&](int px, int py) {
        return px >= 0 && py >= 0 && px < pixels.width() && py < pixels.height() ? pixels.row(py)[px] : 0;
    };
    const std::array<std::uint32_t, 4> corners = {pixel(left, top), pixel(left + 1, top),
                                                  pixel(left, top + 1), pixel(left + 1, top + 1)};
    const std::array<std::uint32_t, 4> parts = {(256 - right) * (256 - below), right * (256 - below),
                                                (256 - right) * below, right * below};
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        std::uint32_t sum = 1 << 15;
        for (std::size_t i = 0; i < 4; ++i)
            sum += (corners[i] >> shift & 0xFF) * parts[i];
        result |= sum >> 16 << shift;
    }
    return result;
}

void putAsItIs(const FilteredPicture& picture, const SurfaceView& surface, PixelPoint offset) {
    const PixelRect& place = picture.grid.place;
    const PixelRect there = surface.clip().intersection({.left = place.left + offset.h,
                                                         .top = place.top + offset.v,
                                                         .right = place.right + offset.h,
                                                         .bottom = place.bottom + offset.v});
    if (there.empty())
        return;
    for (int y = there.top; y < there.bottom; ++y)
        std::memcpy(surface.row(y) + there.left,
                    picture.pixels->row(y - offset.v - place.top) + (there.left - offset.h - place.left),
                    static_cast<std::size_t>(there.width()) * sizeof(std::uint32_t));
}

} // namespace

void put(const FilteredPicture& picture, const SurfaceView& surface, PixelPoint offset) {
    if (picture.grid.toSheet == Affine())
        return putAsItIs(picture, surface, offset);
    const Affine fromSheet = picture.grid.toSheet.inverse();
    const PixelRect& clip = surface.clip();
    for (int y = clip.top; y < clip.bottom; ++y)
        for (int x = clip.left; x < clip.right; ++x)
            surface.row(y)[x] = sampled(picture, fromSheet({x - offset.h + 0.5, y - offset.v + 0.5}));
}

} // namespace easel::paint
