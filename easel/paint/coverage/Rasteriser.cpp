// Scan conversion by accumulated signed area, as smooth rasterisers of fonts do it: FreeType's in sorted
// cells, font-rs in a buffer like the one here. What a shape covers of a pixel is the sum over its edges of
// the pixel's area right of each, positive for edges that lead downwards and negative for those that lead
// upwards. That area changes only in the columns that an edge passes, and the edge leaves there by how much
// it differs from the area one column before. A running sum along the row makes coverage of what all edges
// have left, without their being sorted from left to right.
//
//     column           0      1      2      3      4
//                  +------+------+------+------+------+
//                  |      |   \  |      |      |      |     an edge that leads down through the whole row,
//                  |      |      '.     |      |      |     from 1.5 to 3.5
//                  |      |      |  `.  |      |      |
//                  |      |      |      '\     |      |
//                  +------+------+------+---\--+------+
//     right of it      0    1/16    1/2   15/16    1        the area, in pixels
//     left behind      0    1/16    7/16   7/16   1/16      its changes
//
// Heights are whole parts of a pixel, so the changes that the edges of a closed polygon leave in a row cancel
// out exactly. The fill rule comes last: even-odd folds the sum, non-zero cuts it off at a whole pixel.
#include "easel/paint/coverage/Rasteriser.h"

#include "easel/paint/coverage/CoverageKernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <utility>

namespace easel::paint {

namespace {

constexpr std::int64_t kUnit = kFullCoverage;
constexpr double kSteepest = 1e10; // parts of a pixel per column

drawing::Point atHeight(drawing::Point from, drawing::Point to, double y) {
    return {from.x + (to.x - from.x) * ((y - from.y) / (to.y - from.y)), y};
}

} // namespace

void Rasteriser::begin(const PixelRect& clip) {
    clip_ = clip.empty() ? PixelRect{} : clip;
    left_ = clip_.left;
    right_ = clip_.right;
    leftmost_ = right_;
    rightmost_ = left_;
    highest_ = clip_.bottom * kUnit;
    lowest_ = clip_.top * kUnit;
    edges_.clear();
}

void Rasteriser::addEdge(drawing::Point from, drawing::Point to) {
    if (!drawing::isFinite(from) || !drawing::isFinite(to) || from.y == to.y)
        return;
    const double top = clip_.top;
    const double bottom = clip_.bottom;
    if (std::max(from.y, to.y) <= top || std::min(from.y, to.y) >= bottom)
        return;
    const drawing::Point whole[] = {from, to};
    const double low = std::clamp(whole[0].y, top, bottom);
    const double high = std::clamp(whole[1].y, top, bottom);
    if (low != from.y)
        from = atHeight(whole[0], whole[1], low);
    if (high != to.y)
        to = atHeight(whole[0], whole[1], high);
    addInside(from, to);
}

// Parts beyond the left border count as lying on it; parts beyond the right border do not matter.
void Rasteriser::addInside(drawing::Point from, drawing::Point to) {
    const int winding = from.y < to.y ? 1 : -1;
    if (winding < 0)
        std::swap(from, to);
    const auto heightAt = [&](double x) {
        return std::clamp(from.y + (to.y - from.y) * ((x - from.x) / (to.x - from.x)), from.y, to.y);
    };
    const auto beyond = [&](double x) { return x < left_ ? -1 : x > right_ ? 1 : 0; };
    if (beyond(from.x) == 0 && beyond(to.x) == 0)
        return addSloped(from, to, winding);
    double cuts[] = {from.y, from.y, to.y, to.y};
    if (beyond(from.x) != beyond(to.x)) {
        cuts[1] = beyond(from.x) == 0 ? from.y : heightAt(from.x < left_ ? left_ : right_);
        cuts[2] = beyond(to.x) == 0 ? to.y : heightAt(to.x < left_ ? left_ : right_);
    }
    const auto xAt = [&](double y) {
        return y == from.y ? from.x : y == to.y ? to.x : atHeight(from, to, y).x;
    };
    for (int part = 0; part < 3; ++part) {
        const double top = cuts[part];
        const double bottom = cuts[part + 1];
        if (top >= bottom)
            continue;
        const double x = xAt((top + bottom) / 2);
        if (x < left_)
            addSloped({left_, top}, {left_, bottom}, winding);
        else if (x > right_)
            rightmost_ = right_;
        else
            addSloped({std::clamp(xAt(top), left_, right_), top},
                      {std::clamp(xAt(bottom), left_, right_), bottom}, winding);
    }
}

void Rasteriser::addSloped(drawing::Point upper, drawing::Point lower, int winding) {
    // Heights lie within the surface, so they are never negative, and cutting off costs less than rounding.
    // NOLINTBEGIN(bugprone-incorrect-roundings)
    const auto top = static_cast<std::int64_t>(upper.y * kUnit + 0.5);
    const auto bottom = static_cast<std::int64_t>(lower.y * kUnit + 0.5);
    // NOLINTEND(bugprone-incorrect-roundings)
    if (top >= bottom)
        return;
    const auto height = static_cast<double>(bottom - top);
    const double run = lower.x - upper.x;
    // Steeper ones stay in a column so long that their rise does not matter.
    const double rise = std::min(height / std::abs(run), kSteepest);
    edges_.push_back({top, bottom, upper.x, run / height, static_cast<float>(rise * winding), winding});
    leftmost_ = std::min({leftmost_, upper.x, lower.x});
    rightmost_ = std::max({rightmost_, upper.x, lower.x});
    highest_ = std::min(highest_, top);
    lowest_ = std::max(lowest_, bottom);
}

PixelRect Rasteriser::bounds() const {
    if (edges_.empty())
        return {};
    return {.left = static_cast<int>(leftmost_),
            .top = static_cast<int>(highest_ / kUnit),
            .right = static_cast<int>(std::ceil(rightmost_)),
            .bottom = static_cast<int>((lowest_ + kUnit - 1) / kUnit)};
}

void Rasteriser::sweep(drawing::FillRule rule, CoverageSink& sink) {
    // Edges leave changes up to one column right of them.
    band_.reserve(static_cast<int>(rightmost_) + 1);
    lists_.reserve(clip_.left, clip_.right, band_.columns());
    std::sort(edges_.begin(), edges_.end(), [](const Edge& a, const Edge& b) { return a.top < b.top; });
    const auto isDone = [](const Edge& edge) { return edge.top == edge.bottom; };
    // From the first that is not done to those that begin below the band.
    auto first = edges_.begin();
    auto next = first;
    for (std::int64_t top = 0; first != edges_.end(); top += kCoverageBandRows) {
        if (first == next)
            top = next->top / kUnit;
        while (next != edges_.end() && next->top < (top + kCoverageBandRows) * kUnit)
            ++next;
        sweepBand({first, next}, top, rule, sink);
        // What is left of them moves up to the others.
        first = std::remove_if(std::make_reverse_iterator(next), std::make_reverse_iterator(first), isDone)
                    .base();
    }
    edges_.clear();
}

void Rasteriser::sweepBand(std::span<Edge> edges, std::int64_t top, drawing::FillRule rule,
                           CoverageSink& sink) {
    addEdges(edges, top, left_, right_, band_);
    const std::int64_t bottom = std::min((lowest_ + kUnit - 1) / kUnit, top + kCoverageBandRows);
    for (std::int64_t row = top; row < bottom; ++row) {
        const RowCoverage coverage = collect(static_cast<std::size_t>(row - top), rule);
        if (!coverage.empty())
            sink.row(static_cast<int>(row), coverage);
    }
}

// Forgets the changes.
RowCoverage Rasteriser::collect(std::size_t row, drawing::FillRule rule) {
    constexpr std::size_t kWord = TouchedBlocks::kInWord;
    const std::size_t first = static_cast<std::size_t>(leftmost_) / kCoverageBlock / kWord * kWord;
    const std::size_t end = ((static_cast<std::size_t>(rightmost_) + 1) / kCoverageBlock / kWord + 1) * kWord;
    std::uint8_t* touched = band_.touched(row);
    sumCoverage({band_.changes(row), touched, first, end}, rule, lists_);
    std::memset(touched + first, 0, end - first);
    return lists_.row();
}

} // namespace easel::paint
