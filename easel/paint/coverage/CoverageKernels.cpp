// Summing up four columns at a time.
#include "easel/paint/coverage/CoverageKernels.h"

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/coverage/TouchedBlocks.h"

#include <utility>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/coverage/CoverageKernels.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

// SumBlock sums up one block, on from the sum of what lies left of it, which stands in all lanes.
#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

using Sum = std::uint32_t;

Sum ZeroSum() {
    return 0;
}

template <drawing::FillRule rule> Sum SumBlock(Sum sum, std::uint32_t* changes, std::uint32_t* coverage) {
    for (int i = 0; i < kCoverageBlock; ++i) {
        sum += std::exchange(changes[i], 0U);
        coverage[i] = coveredShare(sum, rule);
    }
    return sum;
}

#else

namespace hn = hwy::HWY_NAMESPACE;

using Four = hn::FixedTag<std::uint32_t, 4>;
using Sum = hn::Vec<Four>;
static_assert(kCoverageBlock % 4 == 0, "a block is whole vectors");

HWY_INLINE Sum ZeroSum() {
    return hn::Zero(Four());
}

// The size of numbers with a sign.
HWY_INLINE Sum Size(Sum value) {
    return hn::BitCast(Four(), hn::Abs(hn::BitCast(hn::RebindToSigned<Four>(), value)));
}

// As coveredShare.
template <drawing::FillRule rule> HWY_INLINE Sum Share(Sum sum) {
    const Four d;
    const auto full = hn::Set(d, kFullCoverage);
    if constexpr (rule == drawing::FillRule::NonZero)
        return hn::Min(Size(sum), full);
    const auto folded = hn::And(sum, hn::Set(d, 2 * kFullCoverage - 1));
    return hn::Sub(full, Size(hn::Sub(folded, full)));
}

template <drawing::FillRule rule>
HWY_INLINE Sum SumBlock(Sum sum, std::uint32_t* changes, std::uint32_t* coverage) {
    const Four d;
    for (std::size_t i = 0; i < kCoverageBlock; i += hn::Lanes(d)) {
        auto four = hn::Load(d, changes + i);
        hn::Store(hn::Zero(d), d, changes + i);
        four = hn::Add(four, hn::ShiftLeftLanes<1>(d, four));
        four = hn::Add(four, hn::ShiftLeftLanes<2>(d, four));
        four = hn::Add(four, sum);
        hn::Store(Share<rule>(four), d, coverage + i);
        sum = hn::Broadcast<3>(four);
    }
    return sum;
}

#endif

template <drawing::FillRule rule> void SumUnderRule(const ChangedRow& row, CoverageLists& lists) {
    CoverageLists::Writer writer(lists);
    TouchedBlocks touched(row.touched, row.firstBlock, row.endBlock);
    auto sum = ZeroSum();
    while (touched.next()) {
        const std::size_t column = touched.block() * kCoverageBlock;
        sum = SumBlock<rule>(sum, row.changes + column, writer.coverage() + column);
        writer.addBlock(static_cast<int>(column));
    }
    writer.finish(lists);
}

void SumCoverage(const ChangedRow& row, drawing::FillRule rule, CoverageLists& lists) {
    if (rule == drawing::FillRule::NonZero)
        SumUnderRule<drawing::FillRule::NonZero>(row, lists);
    else
        SumUnderRule<drawing::FillRule::EvenOdd>(row, lists);
}

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace easel::paint {

HWY_EXPORT(SumCoverage);

void sumCoverage(const ChangedRow& row, drawing::FillRule rule, CoverageLists& lists) {
    HWY_DYNAMIC_DISPATCH(SumCoverage)(row, rule, lists);
}

} // namespace easel::paint
#endif
