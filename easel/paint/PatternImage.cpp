#include "easel/paint/PatternImage.h"

#include "easel/drawing/Object.h"
#include "easel/paint/ClipMask.h"
#include "easel/paint/Layer.h"
#include "easel/paint/ObjectPainter.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

using drawing::Affine;
using drawing::Box;
using drawing::Pattern;
using drawing::Point;

namespace {

// Pixels of one cell; larger ones are painted as they show.
constexpr double kMostCellPixels = 1 << 22;
// Cells that are thinner are painted once in any case, so that never many are painted one by one.
constexpr double kThinnest = 16;
constexpr double kMostCells = 1024;
// The longer side of such a cell.
constexpr double kLongestSide = kMostCellPixels / (2 * kThinnest);
// How far what is in a cell may reach into its neighbors, in cells.
constexpr double kFarthestOverflow = 3;

// The cells that something concerns, by their distance from the pattern's own.
struct CellRange {
    int left = 0, top = 0, right = 0, bottom = 0; // the last ones included

    bool single() const { return left == right && top == bottom; }
};

std::optional<int> cellAt(double place, double begin, double size) {
    const double number = std::floor((place - begin) / size);
    return std::abs(number) < 1e9 ? std::optional(static_cast<int>(number)) : std::nullopt;
}

// The cells under a box of the drawing. Nothing if they are too far away for numbers.
std::optional<CellRange> cellsUnder(const Pattern& pattern, const Box& place) {
    const Box box = boxUnder(place, pattern.toDrawing.inverse());
    // What ends where a cell does is not to count as lying in the next one.
    const Box& cell = pattern.cell;
    const double nearX = cell.width() * 1e-9;
    const double nearY = cell.height() * 1e-9;
    const auto left = cellAt(box.left + nearX, cell.left, cell.width());
    const auto top = cellAt(box.top + nearY, cell.top, cell.height());
    const auto right = cellAt(box.right - nearX, cell.left, cell.width());
    const auto bottom = cellAt(box.bottom - nearY, cell.top, cell.height());
    if (!left || !top || !right || !bottom)
        return std::nullopt;
    return CellRange{*left, *top, std::max(*left, *right), std::max(*top, *bottom)};
}

// The neighbors, to either side, that may show in a cell.
CellRange neighborsOf(const Pattern& pattern) {
    if (!pattern.showsOverflow)
        return {};
    Box box;
    for (const drawing::ObjectPtr& object : *pattern.objects)
        box.add(object->paintBounds());
    const auto cells = [](double reach, double size) {
        return static_cast<int>(std::clamp(std::ceil(reach / size), 0.0, kFarthestOverflow));
    };
    const Box& cell = pattern.cell;
    return {-cells(box.right - cell.right, cell.width()), -cells(box.bottom - cell.bottom, cell.height()),
            cells(cell.left - box.left, cell.width()), cells(cell.top - box.top, cell.height())};
}

template <class Visit> void forEachCell(const Pattern& pattern, const CellRange& range, const Visit& visit) {
    for (int y = range.top; y <= range.bottom; ++y)
        for (int x = range.left; x <= range.right; ++x)
            visit(Affine::translation(x * pattern.cell.width(), y * pattern.cell.height()));
}

// One cell with no more than what belongs in it.
void paintCell(const Pattern& pattern, const Affine& toSurface, const SurfaceView& surface) {
    if (pattern.showsOverflow)
        return ObjectPainter().paint(*pattern.objects, surface, toSurface);
    drawing::ClipPath clip;
    clip.shapes.push_back({drawing::rectanglePath(pattern.cell), drawing::FillRule::NonZero, nullptr});
    const PixelRect place = pixelsInside(clip, toSurface, surface.clip());
    if (place.empty())
        return;
    Layer layer(place);
    const Affine toLayer = layer.mapped(toSurface);
    ObjectPainter().paint(*pattern.objects, layer.view(), toLayer);
    Painter painter;
    clipLayer(layer, clip, toLayer, painter);
    layer.layOn(surface, 1);
}

bool isWhole(double value) {
    return std::abs(value - std::round(value)) < 1e-4;
}

struct CellSize {
    double width;
    double height;

    double pixels() const { return width * height; }
};

// In pixels of the surface.
CellSize shownSize(const Pattern& pattern, const Affine& toSurface) {
    const Affine map = toSurface * pattern.toDrawing;
    return {pattern.cell.width() * std::hypot(map.a, map.b),
            pattern.cell.height() * std::hypot(map.c, map.d)};
}

// As many pixels as it takes to show the cell. Where its pixels and those of the surface do not fall
// together, twice as many keep it from being blurred.
CellSize paintedSize(const Pattern& pattern, const Affine& toSurface) {
    const Affine map = toSurface * pattern.toDrawing;
    const CellSize shown = shownSize(pattern, toSurface);
    const Point corner = map({pattern.cell.left, pattern.cell.top});
    const bool straight = map.b == 0 && map.c == 0;
    const bool together =
        isWhole(shown.width) && isWhole(shown.height) && isWhole(corner.x) && isWhole(corner.y);
    const double finer = straight && !together ? 2 : 1;
    const auto side = [finer](double pixels) {
        return std::max(1.0, isWhole(pixels) ? std::round(pixels) * finer : std::ceil(pixels * finer));
    };
    return {side(shown.width), side(shown.height)};
}

} // namespace

std::shared_ptr<Surface> PatternCells::cell(const Pattern& pattern, int width, int height) {
    if (last_.pattern == &pattern && last_.width == width && last_.height == height)
        return last_.pixels;
    auto pixels = std::make_shared<Surface>(width, height);
    const Affine toPixels = Affine::scaling(width / pattern.cell.width(), height / pattern.cell.height()) *
                            Affine::translation(-pattern.cell.left, -pattern.cell.top);
    forEachCell(pattern, neighborsOf(pattern), [&](const Affine& toNeighbor) {
        ObjectPainter().paint(*pattern.objects, pixels->view(), toPixels * toNeighbor);
    });
    last_ = {&pattern, width, height, pixels};
    return pixels;
}

PatternImage::PatternImage(const Pattern& pattern, const Box& filled, const PixelRect& area,
                           const Affine& toSurface, PatternCells& cells) {
    const auto range = cellsUnder(pattern, filled);
    if (area.empty() || !(toSurface * pattern.toDrawing).invertible() || !range)
        return;
    const CellSize size = paintedSize(pattern, toSurface);
    const bool thin = std::min(size.width, size.height) < kThinnest;
    if (range->single() || (size.pixels() > kMostCellPixels && !thin))
        paintCells(pattern, area, toSurface);
    else
        repeatCell(pattern, static_cast<int>(std::min(size.width, kLongestSide)),
                   static_cast<int>(std::min(size.height, kLongestSide)), cells);
}

void PatternImage::repeatCell(const Pattern& pattern, int width, int height, PatternCells& cells) {
    pixels_ = cells.cell(pattern, width, height);
    setImage(pattern.toDrawing * Affine::translation(pattern.cell.left, pattern.cell.top) *
                 Affine::scaling(pattern.cell.width() / width, pattern.cell.height() / height),
             true);
}

void PatternImage::paintCells(const Pattern& pattern, const PixelRect& area, const Affine& toSurface) {
    const Affine toDrawing = toSurface.inverse() * Affine::translation(area.left, area.top);
    const auto range = cellsUnder(
        pattern,
        boxUnder({0, 0, static_cast<double>(area.width()), static_cast<double>(area.height())}, toDrawing));
    if (!range || range->right - range->left > kMostCells || range->bottom - range->top > kMostCells)
        return;
    const CellRange reach = neighborsOf(pattern);
    const Affine toPixels = Affine::translation(-area.left, -area.top) * toSurface * pattern.toDrawing;
    pixels_ = std::make_shared<Surface>(area.width(), area.height());
    forEachCell(pattern,
                {range->left + reach.left, range->top + reach.top, range->right + reach.right,
                 range->bottom + reach.bottom},
                [&](const Affine& toCell) { paintCell(pattern, toPixels * toCell, pixels_->view()); });
    setImage(toDrawing, false);
}

void PatternImage::setImage(const Affine& toDrawing, bool repeats) {
    image_ = imageOf(*pixels_, toDrawing, repeats, repeats);
}

} // namespace easel::paint
