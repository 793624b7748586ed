// Exact-area coverage: edges leave signed changes of coverage in the columns they pass, a running sum turns
// them into coverage.
#include "easel/paint/Rasteriser.h"

#include "easel/paint/CoverageKernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace easel::paint {

namespace {

constexpr std::int64_t kUnit = kFullCoverage;

drawing::Point atHeight(drawing::Point from, drawing::Point to, double y) {
    return {from.x + (to.x - from.x) * ((y - from.y) / (to.y - from.y)), y};
}

} // namespace

void Rasteriser::begin(const PixelBox& clip) {
    clip_ = clip.empty() ? PixelBox{} : clip;
    left_ = clip_.left;
    right_ = clip_.right;
    leftmost_ = right_;
    rightmost_ = left_;
    highest_ = clip_.bottom * kUnit;
    lowest_ = clip_.top * kUnit;
    edges_.clear();
    active_.clear();
    // Coverage that ends at the right border leaves its change one column beyond it.
    changes_.reserve(clip_.right + 1);
    coverage_.resize(changes_.columns());
    full_.resize(changes_.columns() / kCoverageBlock + 2);
    partial_.resize(full_.size());
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
    const double way = lower.x - upper.x;
    edges_.push_back({top, bottom, upper.x, way / height, winding * height / std::abs(way), winding});
    leftmost_ = std::min({leftmost_, upper.x, lower.x});
    rightmost_ = std::max({rightmost_, upper.x, lower.x});
    highest_ = std::min(highest_, top);
    lowest_ = std::max(lowest_, bottom);
}

PixelBox Rasteriser::bounds() const {
    if (edges_.empty())
        return {};
    return {static_cast<int>(leftmost_), static_cast<int>(highest_ / kUnit),
            static_cast<int>(std::ceil(rightmost_)), static_cast<int>((lowest_ + kUnit - 1) / kUnit)};
}

void Rasteriser::sweep(drawing::FillRule rule, CoverageSink& sink) {
    std::sort(edges_.begin(), edges_.end(), [](const Edge& a, const Edge& b) { return a.top < b.top; });
    auto next = edges_.begin();
    std::int64_t row = 0;
    while (next != edges_.end() || !active_.empty()) {
        if (active_.empty())
            row = next->top / kUnit;
        const std::int64_t rowBottom = (row + 1) * kUnit;
        for (; next != edges_.end() && next->top < rowBottom; ++next)
            active_.push_back(*next);
        sweepRow(rowBottom);
        const RowCoverage coverage = collect(rule);
        if (!coverage.empty())
            sink.row(static_cast<int>(row), coverage);
        ++row;
    }
}

// Takes the edges' part in a row off them and leaves it in the columns.
void Rasteriser::sweepRow(std::int64_t rowBottom) {
    for (std::size_t i = 0; i < active_.size();) {
        Edge& edge = active_[i];
        const std::int64_t bottom = std::min(edge.bottom, rowBottom);
        const auto height = static_cast<int>(bottom - edge.top);
        // Rounding must not carry the end out of the columns there are.
        const double end = std::clamp(edge.x + edge.slope * height, left_, right_);
        changes_.addEdge(std::min(edge.x, end), std::max(edge.x, end), edge.rise, height * edge.winding);
        edge.x = end;
        edge.top = bottom;
        if (bottom < edge.bottom) {
            ++i;
            continue;
        }
        edge = active_.back();
        active_.pop_back();
    }
}

// Forgets the changes.
RowCoverage Rasteriser::collect(drawing::FillRule rule) {
    constexpr std::size_t kWord = TouchedBlocks::kInWord;
    const std::size_t first = static_cast<std::size_t>(leftmost_) / kCoverageBlock / kWord * kWord;
    const std::size_t end = ((static_cast<std::size_t>(rightmost_) + 1) / kCoverageBlock / kWord + 1) * kWord;
    TouchedBlocks touched(changes_.touched(), first, end);
    sumCoverage(touched, changes_.data(), coverage_.data(), rule);
    fullCount_ = 0;
    partialCount_ = 0;
    int reached = clip_.left;
    std::uint32_t covered = 0;
    while (touched.next()) {
        const int column = static_cast<int>(touched.block()) * kCoverageBlock;
        addEven(reached, column, covered);
        reached = column + kCoverageBlock;
        covered = coverage_[static_cast<std::size_t>(reached) - 1];
        addPartial(column, reached);
    }
    addEven(reached, clip_.right, covered);
    std::memset(changes_.touched() + first, 0, end - first);
    return {{full_.data(), fullCount_}, {partial_.data(), partialCount_}, coverage_.data()};
}

void Rasteriser::addPartial(int begin, int end) {
    const PixelSpan span{std::max(begin, clip_.left), std::min(end, clip_.right)};
    partial_[partialCount_] = span;
    partialCount_ += span.begin < span.end ? 1 : 0;
}

// Pixels between blocks with changes, all covered alike.
void Rasteriser::addEven(int begin, int end, std::uint32_t covered) {
    full_[fullCount_] = {begin, end};
    fullCount_ += covered == kFullCoverage && begin < end ? 1 : 0;
    if (covered == 0 || covered == kFullCoverage)
        return;
    for (; begin < end; begin = (begin / kCoverageBlock + 1) * kCoverageBlock) {
        const int blockEnd = std::min((begin / kCoverageBlock + 1) * kCoverageBlock, end);
        std::fill(coverage_.begin() + begin, coverage_.begin() + blockEnd, covered);
        addPartial(begin, blockEnd);
    }
}

} // namespace easel::paint
