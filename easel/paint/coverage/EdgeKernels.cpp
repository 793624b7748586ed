// Coverage that edges leave, as many columns at a time as there are lanes.
#include "easel/paint/coverage/EdgeKernels.h"

#include <algorithm>
#include <bit>
#include <cmath>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/coverage/EdgeKernels.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

#ifndef EASEL_PAINT_EDGE_IN_ROW
#define EASEL_PAINT_EDGE_IN_ROW
namespace easel::paint {

// The part of an edge that lies in one row, in columns right of the one that holds its leftmost place.
struct EdgeInRow {
    float left; // from 0 up to 1
    float width;
    float halfRise;
    float cover; // the height, with the sign of the winding
    int columns; // that it passes, and the one after them
};

// Added to a coverage, it leaves the nearest whole number in the lowest bits; what is above cancels out in
// differences.
constexpr float kToBits = 3.0F * (1 << 22);
static_assert(kFullCoverage < 1 << 22, "there are bits for a whole coverage of either sign");

} // namespace easel::paint
#endif

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

// AddColumns adds up what each column has right of the edge: a slope that grows from 0 to the whole height,
// then the whole height. Single precision is exact to a part of a pixel, and exact where the edge has been
// passed.
#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

void AddColumns(const EdgeInRow& edge, std::uint32_t* changes) {
    auto before = std::bit_cast<std::uint32_t>(kToBits);
    for (int column = 0; column < edge.columns; ++column) {
        const float begin = static_cast<float>(column) - edge.left;
        const float end = begin + 1;
        const float from = std::min(std::max(begin, 0.0F), edge.width);
        const float to = std::min(end, edge.width);
        const float passed = std::min(std::max(end - edge.width, 0.0F), 1.0F);
        const float covered = edge.halfRise * ((to - from) * (to + from)) + edge.cover * passed;
        const auto now = std::bit_cast<std::uint32_t>(covered + kToBits);
        changes[column] += now - before;
        before = now;
    }
}

#else

namespace hn = hwy::HWY_NAMESPACE;

HWY_INLINE void AddColumns(const EdgeInRow& edge, std::uint32_t* changes) {
    const hn::CappedTag<float, kCoverageBlock> df;
    const hn::RebindToUnsigned<decltype(df)> d;
    const int lanes = static_cast<int>(hn::Lanes(df));
    const auto one = hn::Set(df, 1.0F);
    const auto zero = hn::Zero(df);
    const auto width = hn::Set(df, edge.width);
    const auto halfRise = hn::Set(df, edge.halfRise);
    const auto cover = hn::Set(df, edge.cover);
    // Moves each lane one to the right, and the last to the front.
    const auto last = hn::Set(d, static_cast<std::uint32_t>(lanes - 1));
    const auto turn = hn::IndicesFromVec(d, hn::And(hn::Add(hn::Iota(d, 0), last), last));
    const auto first = hn::FirstN(d, 1);
    const auto toBits = hn::Set(df, kToBits);
    auto before = hn::BitCast(d, toBits);
    for (int column = 0; column < edge.columns; column += lanes) {
        const auto begin = hn::Sub(hn::Iota(df, static_cast<float>(column)), hn::Set(df, edge.left));
        const auto end = hn::Add(begin, one);
        const auto from = hn::Min(hn::Max(begin, zero), width);
        const auto to = hn::Min(end, width);
        const auto passed = hn::Min(hn::Max(hn::Sub(end, width), zero), one);
        const auto sloped = hn::Mul(halfRise, hn::Mul(hn::Sub(to, from), hn::Add(to, from)));
        const auto now = hn::BitCast(d, hn::Add(hn::Add(sloped, hn::Mul(cover, passed)), toBits));
        const auto turned = hn::TableLookupLanes(now, turn);
        const auto change = hn::Sub(now, hn::IfThenElse(first, before, turned));
        hn::StoreU(hn::Add(hn::LoadU(d, changes + column), change), d, changes + column);
        before = turned;
    }
}

#endif

// The part of an edge between two places of a row.
HWY_INLINE void AddPart(const Edge& edge, double from, double to, int height, std::uint32_t* changes,
                        std::uint8_t* touched) {
    const double left = std::min(from, to);
    const auto first = static_cast<int>(left);
    const auto last = static_cast<int>(std::max(from, to)) + 1;
    AddColumns({static_cast<float>(left - first), static_cast<float>(std::abs(to - from)), edge.rise / 2,
                static_cast<float>(height * edge.winding), last - first + 1},
               changes + first);
    for (int column = first; column < last; column += kCoverageBlock)
        touched[static_cast<unsigned>(column) / kCoverageBlock] = 1;
    touched[static_cast<unsigned>(last) / kCoverageBlock] = 1;
}

void AddEdges(std::span<Edge> edges, std::int64_t top, double left, double right, CoverageBand& band) {
    constexpr std::int64_t kUnit = kFullCoverage;
    const std::size_t columns = band.columns();
    const std::size_t blocks = columns / kCoverageBlock;
    for (Edge& edge : edges) {
        const std::int64_t bottom = std::min(edge.bottom, (top + kCoverageBandRows) * kUnit);
        const auto row = static_cast<std::size_t>(edge.top / kUnit - top);
        std::uint32_t* changes = band.changes(row);
        std::uint8_t* touched = band.touched(row);
        double x = edge.x;
        std::int64_t y = edge.top;
        for (std::int64_t next = (y / kUnit + 1) * kUnit; y < bottom; next += kUnit) {
            const auto height = static_cast<int>(std::min(next, bottom) - y);
            // Rounding must not carry the end out of the columns there are.
            const double end = std::min(std::max(x + edge.slope * height, left), right);
            AddPart(edge, x, end, height, changes, touched);
            x = end;
            y = std::min(next, bottom);
            changes += columns;
            touched += blocks;
        }
        edge.x = x;
        edge.top = bottom;
    }
}

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace easel::paint {

HWY_EXPORT(AddEdges);

void addEdges(std::span<Edge> edges, std::int64_t top, double left, double right, CoverageBand& band) {
    HWY_DYNAMIC_DISPATCH(AddEdges)(edges, top, left, right, band);
}

} // namespace easel::paint
#endif
