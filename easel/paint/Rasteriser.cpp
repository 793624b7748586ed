// Exact-area coverage: edges leave signed changes of coverage in the columns they pass, a running sum turns
// them into runs.
#include "easel/paint/Rasteriser.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace easel::paint {

namespace {

constexpr std::int64_t kUnit = kFullCoverage;

int roundedInt(double value) {
    return static_cast<int>(std::lrint(value));
}

// The covered share under a fill rule, from the sum of the windings' areas.
int covered(std::int64_t sum, drawing::FillRule rule) {
    const std::int64_t size = std::abs(sum);
    if (rule == drawing::FillRule::NonZero)
        return static_cast<int>(std::min(size, kUnit));
    const auto folded = static_cast<int>(size % (2 * kUnit));
    return folded > kFullCoverage ? 2 * kFullCoverage - folded : folded;
}

drawing::Point atHeight(drawing::Point from, drawing::Point to, double y) {
    return {from.x + (to.x - from.x) * ((y - from.y) / (to.y - from.y)), y};
}

} // namespace

void Rasteriser::begin(const PixelBox& clip) {
    clip_ = clip;
    width_ = clip.width();
    height_ = clip.height();
    leftmost_ = width_;
    rightmost_ = 0;
    highest_ = clip.height() * kUnit;
    lowest_ = 0;
    edges_.clear();
    active_.clear();
    // Coverage that ends at the right border leaves its change one or two columns beyond it.
    const auto columns = static_cast<std::size_t>(clip.width()) + 2;
    if (cells_.size() < columns) {
        cells_.assign(columns, 0);
        touched_.assign(columns / 64 + 1, 0);
    }
}

void Rasteriser::addEdge(drawing::Point from, drawing::Point to) {
    const drawing::Point corner{static_cast<double>(clip_.left), static_cast<double>(clip_.top)};
    from = from - corner;
    to = to - corner;
    if (!drawing::isFinite(from) || !drawing::isFinite(to) || from.y == to.y)
        return;
    if (std::max(from.y, to.y) <= 0 || std::min(from.y, to.y) >= height_)
        return;
    const drawing::Point whole[] = {from, to};
    const double low = std::clamp(whole[0].y, 0.0, height_);
    const double high = std::clamp(whole[1].y, 0.0, height_);
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
    const auto beyond = [&](double x) { return x < 0 ? -1 : x > width_ ? 1 : 0; };
    if (beyond(from.x) == 0 && beyond(to.x) == 0)
        return addSloped(from, to, winding);
    double cuts[] = {from.y, from.y, to.y, to.y};
    if (beyond(from.x) != beyond(to.x)) {
        cuts[1] = beyond(from.x) == 0 ? from.y : heightAt(from.x < 0 ? 0 : width_);
        cuts[2] = beyond(to.x) == 0 ? to.y : heightAt(to.x < 0 ? 0 : width_);
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
        if (x < 0)
            addSloped({0, top}, {0, bottom}, winding);
        else if (x > width_)
            rightmost_ = width_;
        else
            addSloped({std::clamp(xAt(top), 0.0, width_), top},
                      {std::clamp(xAt(bottom), 0.0, width_), bottom}, winding);
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
    edges_.push_back(
        {top, bottom, upper.x, (lower.x - upper.x) / static_cast<double>(bottom - top), winding});
    leftmost_ = std::min({leftmost_, upper.x, lower.x});
    rightmost_ = std::max({rightmost_, upper.x, lower.x});
    highest_ = std::min(highest_, top);
    lowest_ = std::max(lowest_, bottom);
}

PixelBox Rasteriser::bounds() const {
    if (edges_.empty())
        return {};
    return {clip_.left + static_cast<int>(leftmost_), clip_.top + static_cast<int>(highest_ / kUnit),
            clip_.left + static_cast<int>(std::ceil(rightmost_)),
            clip_.top + static_cast<int>((lowest_ + kUnit - 1) / kUnit)};
}

void Rasteriser::sweep(drawing::FillRule rule, RowSink& sink) {
    std::sort(edges_.begin(), edges_.end(), [](const Edge& a, const Edge& b) { return a.top < b.top; });
    auto next = edges_.begin();
    std::int64_t row = 0;
    while (next != edges_.end() || !active_.empty()) {
        if (active_.empty())
            row = next->top / kUnit;
        const std::int64_t rowBottom = (row + 1) * kUnit;
        for (; next != edges_.end() && next->top < rowBottom; ++next)
            active_.push_back(*next);
        for (std::size_t i = 0; i < active_.size();) {
            advance(active_[i], rowBottom);
            if (active_[i].top == active_[i].bottom) {
                active_[i] = active_.back();
                active_.pop_back();
            } else {
                ++i;
            }
        }
        collectRuns(rule);
        if (!runs_.empty())
            sink.row(clip_.top + static_cast<int>(row), runs_);
        ++row;
    }
}

// Takes the edge's part in this row off it and leaves its coverage in the cells.
void Rasteriser::advance(Edge& edge, std::int64_t rowBottom) {
    const std::int64_t bottom = std::min(edge.bottom, rowBottom);
    const auto height = static_cast<int>(bottom - edge.top);
    // Rounding must not carry the end out of the columns there are.
    const double end = std::clamp(edge.x + edge.slope * height, 0.0, width_);
    accumulate(std::min(edge.x, end), std::max(edge.x, end), height * edge.winding);
    edge.x = end;
    edge.top = bottom;
}

void Rasteriser::accumulate(double left, double right, int cover) {
    const int first = static_cast<int>(left);
    const int last = static_cast<int>(right);
    if (last > first && right > first + 1)
        return accumulateAcross(left, right, first, last, cover);
    // In one column: what lies left of the edge's middle is covered only from the next column on.
    const int later = roundedInt(((left + right) / 2 - first) * cover);
    put(first, cover - later);
    put(first + 1, later);
}

// Over several columns the coverage grows by a triangle, then linearly, then by what the last triangle
// leaves.
void Rasteriser::accumulateAcross(double left, double right, int first, int last, int cover) {
    const double rise = cover / (right - left);
    const double head = first + 1 - left;
    int before = roundedInt(head * head / 2 * rise);
    put(first, before);
    for (int column = first + 1; column < last; ++column) {
        const int now = roundedInt((column + 0.5 - left) * rise);
        put(column, now - before);
        before = now;
    }
    const double tail = right - last;
    const int now = cover - roundedInt(tail * tail / 2 * rise);
    put(last, now - before);
    put(last + 1, cover - now);
}

// Empties the cells again while it reads them.
void Rasteriser::collectRuns(drawing::FillRule rule) {
    runs_.clear();
    std::int64_t sum = 0;
    int begin = 0;
    const auto emitTo = [&](int end) {
        const int coverage = covered(sum, rule);
        if (coverage > 0 && begin < end)
            runs_.push_back({clip_.left + begin, clip_.left + end, coverage});
        begin = end;
    };
    const int width = clip_.width();
    // Changes may lie up to two columns right of the edges.
    const auto firstWord = static_cast<std::size_t>(leftmost_) / 64;
    const auto lastWord = (static_cast<std::size_t>(rightmost_) + 2) / 64;
    for (std::size_t word = firstWord; word <= lastWord; ++word) {
        for (std::uint64_t bits = touched_[word]; bits != 0; bits &= bits - 1) {
            const auto column = static_cast<int>(word) * 64 + std::countr_zero(bits);
            const std::int64_t change = std::exchange(cells_[static_cast<std::size_t>(column)], 0);
            if (change == 0)
                continue;
            emitTo(std::min(column, width));
            sum += change;
        }
        touched_[word] = 0;
    }
    emitTo(width);
}

} // namespace easel::paint
