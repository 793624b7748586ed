// Inner loops of linear gradients, in whole numbers throughout. Two colors of 16 bits each lie in a 32-bit
// lane, and a pixel takes the high bytes of two such lanes: blue and red of one, green and alpha of the
// other.
#include "easel/paint/gradient/LinearKernels.h"

#include "easel/paint/gradient/PlainLinear.h"

#include <algorithm>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/gradient/LinearKernels.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

#include "easel/paint/pixels/StorePixels.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

void FillLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretch) {
    plain::fillLinear(row, spans, stretch);
}
void BlendLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretch,
                 const std::uint32_t* coverage) {
    plain::blendLinear(row, spans, stretch, coverage);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

// Vectors of pixels, and of the 16-bit colors in them.
template <class D> using Unsigned16 = hn::Repartition<std::uint16_t, D>;
template <class D> using Signed16 = hn::Repartition<std::int16_t, D>;

// A color in all lanes: one half of each lane from each of two channels.
template <class D> hn::Vec<Unsigned16<D>> Pair(D d, std::uint32_t low, std::uint32_t high) {
    return hn::BitCast(Unsigned16<D>(), hn::Set(d, (high & 0xFFFF0000) | low >> 16));
}
template <class D> hn::Vec<Unsigned16<D>> Colors(D d, const std::uint32_t* pairs) {
    return hn::BitCast(Unsigned16<D>(), hn::Load(d, pairs));
}

// Pixels from begin to end; those up to `room` may be written over.
HWY_INLINE void FillStretch(std::uint32_t* row, int begin, int end, int room, const LinearStretch& stretch) {
    const hn::ScalableTag<std::uint32_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto highBytes = hn::Set(d, 0xFF00FF00);
    const LinearSteps& steps = *stretch.steps;
    for (int block = begin; block < end; block += kBlock) {
        const auto x = static_cast<std::uint32_t>(block);
        const auto blueRed =
            Pair(d, stretch.origin[0] + steps.pixel[0] * x, stretch.origin[2] + steps.pixel[2] * x);
        const auto greenAlpha = Pair(d, stretch.origin[1] + steps.pixel[1] * x, 0xFF000000);
        for (int i = 0; i < kBlock; i += lanes) {
            const auto even = hn::Add(blueRed, Colors(d, steps.blueRed.data() + i));
            const auto odd = hn::Add(greenAlpha, Colors(d, steps.green.data() + i));
            const auto pixels =
                hn::Or(hn::BitCast(d, hn::ShiftRight<8>(even)), hn::And(hn::BitCast(d, odd), highBytes));
            StorePixels(d, pixels, row, block + i, room);
        }
    }
}

void FillLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretch) {
    for (const PixelSpan& span : spans) {
        while (stretch->end <= span.begin)
            ++stretch;
        int begin = span.begin;
        for (; stretch->end < span.end; ++stretch) {
            FillStretch(row, begin, stretch->end, span.end, *stretch);
            begin = stretch->end;
        }
        FillStretch(row, begin, span.end, span.end, *stretch);
    }
}

// At most a block, even where vectors are longer.
using Part = hn::CappedTag<std::uint32_t, kCoverageBlock>;

static_assert(kFullCoverage == 1 << 15, "a share is a fraction of 15 bits");

// The covered shares of a vector's pixels, for both colors in each lane. They are negative, since a signed
// fraction has no room for 1.
template <class V> HWY_INLINE hn::Vec<Signed16<Part>> NegativeShares(V coverage) {
    return hn::Neg(hn::BitCast(Signed16<Part>(), hn::Or(coverage, hn::ShiftLeft<16>(coverage))));
}

// Lays shares of new colors over old ones. Colors are 128ths of a level and half a level more, so that
// cutting off rounds.
template <class V, class S> HWY_INLINE V Mixed(V below, V above, S negativeShares) {
    const Signed16<Part> s16;
    const auto from = hn::BitCast(s16, below);
    const auto change = hn::Sub(hn::BitCast(s16, above), from);
    return hn::BitCast(Unsigned16<Part>(), hn::Sub(from, hn::MulFixedPoint15(change, negativeShares)));
}

// `even` and `odd` are new colors in 256ths of a level.
template <class V, class S>
HWY_INLINE void BlendPart(std::uint32_t* pixels, V even, V odd, S negativeShares) {
    const Part d;
    const Unsigned16<Part> u16;
    const auto levels = hn::Set(u16, 0x7F80);
    const auto half = hn::Set(u16, 0x0040);
    const auto below = hn::BitCast(u16, hn::LoadU(d, pixels));
    const auto belowEven = hn::Or(hn::And(hn::ShiftLeft<7>(below), levels), half);
    const auto belowOdd = hn::Or(hn::And(hn::ShiftRight<1>(below), levels), half);
    const auto blueRed = hn::ShiftRight<7>(Mixed(belowEven, hn::ShiftRight<1>(even), negativeShares));
    const auto greenAlpha = hn::ShiftLeft<1>(Mixed(belowOdd, hn::ShiftRight<1>(odd), negativeShares));
    const auto mixed = hn::Or(blueRed, hn::And(greenAlpha, hn::Set(u16, 0xFF00)));
    hn::StoreU(hn::BitCast(d, mixed), d, pixels);
}

// The block that begins with pixel x; `shares` gives the coverage of the pixels of a vector by its place in
// the block.
template <class Shares>
HWY_INLINE void BlendBlock(std::uint32_t* pixels, std::uint32_t x, const LinearStretch& stretch,
                           const Shares& shares) {
    const Part d;
    if (!stretch.steps)
        return;
    const LinearSteps& steps = *stretch.steps;
    const auto blueRed =
        Pair(d, stretch.origin[0] + steps.pixel[0] * x, stretch.origin[2] + steps.pixel[2] * x);
    const auto greenAlpha = Pair(d, stretch.origin[1] + steps.pixel[1] * x, 0xFF800000);
    for (std::size_t at = 0; at < kCoverageBlock; at += hn::Lanes(d))
        BlendPart(pixels + at, hn::Add(blueRed, Colors(d, steps.blueRed.data() + at)),
                  hn::Add(greenAlpha, Colors(d, steps.green.data() + at)), NegativeShares(shares(at)));
}

// Vectors read at an offset show the lanes from there on, or up to there.
constexpr std::uint32_t kAll = 0xFFFFFFFF;
constexpr std::uint32_t kShownLanes[3 * kCoverageBlock] = {
    0, 0, 0, 0, 0, 0, 0, 0, kAll, kAll, kAll, kAll, kAll, kAll, kAll, kAll, 0, 0, 0, 0, 0, 0, 0, 0};
static_assert(kCoverageBlock == 8, "a third of the lanes above");

// The part of a span in the block that begins with pixel x, through as many stretches as it takes.
HWY_INLINE void BlendStretches(std::uint32_t* pixels, int x, const PixelSpan& span,
                               const LinearStretch* stretch, const std::uint32_t* coverage) {
    const Part d;
    for (int begin = span.begin; begin < span.end; begin = stretch++->end) {
        const std::uint32_t* shownFrom = kShownLanes + kCoverageBlock - (begin - x);
        const std::uint32_t* shownTo =
            kShownLanes + 2 * kCoverageBlock - (std::min(span.end, stretch->end) - x);
        const auto shares = [&](std::size_t at) HWY_ATTR {
            const auto shown = hn::And(hn::LoadU(d, shownFrom + at), hn::LoadU(d, shownTo + at));
            return hn::And(hn::LoadU(d, coverage + at), shown);
        };
        BlendBlock(pixels, static_cast<std::uint32_t>(x), *stretch, shares);
    }
}

// A block of which only a span is ours.
HWY_NOINLINE void BlendNarrow(std::uint32_t* row, int x, const PixelSpan& span, const LinearStretch* stretch,
                              const std::uint32_t* coverage) {
    std::uint32_t pixels[kCoverageBlock] = {};
    std::uint32_t* const ours = pixels + (span.begin - x);
    const auto bytes = static_cast<std::size_t>(span.end - span.begin) * sizeof pixels[0];
    std::memcpy(ours, row + span.begin, bytes);
    BlendStretches(pixels, x, span, stretch, coverage);
    std::memcpy(row + span.begin, ours, bytes);
}

void BlendLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretch,
                 const std::uint32_t* coverage) {
    const Part d;
    for (const PixelSpan& span : spans) {
        while (stretch->end <= span.begin)
            ++stretch;
        const int x = span.begin & ~(kCoverageBlock - 1);
        const std::uint32_t* covered = coverage + x;
        if (span.end - span.begin != kCoverageBlock)
            BlendNarrow(row, x, span, stretch, covered);
        else if (stretch->end < span.end)
            BlendStretches(row + x, x, span, stretch, covered);
        else
            BlendBlock(row + x, static_cast<std::uint32_t>(x), *stretch,
                       [&](std::size_t at) HWY_ATTR { return hn::LoadU(d, covered + at); });
    }
}

#endif

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace easel::paint {

HWY_EXPORT(FillLinear);
HWY_EXPORT(BlendLinear);

void fillLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretches) {
    HWY_DYNAMIC_DISPATCH(FillLinear)(row, spans, stretches);
}

void blendLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretches,
                 const std::uint32_t* coverage) {
    HWY_DYNAMIC_DISPATCH(BlendLinear)(row, spans, stretches, coverage);
}

} // namespace easel::paint
#endif
