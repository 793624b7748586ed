// Inner loop of linear gradients with opacity, in whole numbers throughout. Colors lie in lanes as they do
// for opaque gradients. A new color takes w of 65536 parts and the old one 65535 - w; the part that is
// missing and what the products cut off are made up for by adding a unit to both colors.
#include "easel/paint/gradient/LinearMixKernels.h"

#include "easel/paint/gradient/PlainLinearMix.h"

#include <algorithm>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/gradient/LinearMixKernels.cpp"
#include "hwy/cache_control.h"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

#include "easel/paint/pixels/MixedPixels.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

void MixLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearMixStretch* stretch,
               std::ptrdiff_t) {
    plain::mixLinear(row, spans, stretch);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

using Pixels = hn::CappedTag<std::uint32_t, kBlock>;
using Colors = hn::Repartition<std::uint16_t, Pixels>;

// Levels of one pixel, in each block of 16 bytes.
HWY_INLINE hn::Vec<Pixels> LevelsAt(int x, const LinearMixStretch& stretch) {
    const Pixels d;
    const auto distance = hn::Set(d, static_cast<std::uint32_t>(x));
    return hn::Add(hn::LoadDup128(d, stretch.origin.data()),
                   hn::Mul(hn::LoadDup128(d, stretch.steps->pixel.data()), distance));
}

template <class Bytes> HWY_INLINE hn::Vec<Pixels> Taken(hn::Vec<Pixels> from, const Bytes& places) {
    const Pixels d;
    const hn::Repartition<std::uint8_t, Pixels> d8;
    return hn::BitCast(d, hn::TableLookupBytes(from, hn::BitCast(d, hn::LoadDup128(d8, places))));
}

// Calls `use` with the colors of the pixels from place `at` of a block on, whose first pixel has the levels:
// blue and red, green and alpha.
template <class Use>
HWY_INLINE auto WithColors(const LinearSteps& color, std::size_t at, hn::Vec<Pixels> levels, const Use& use) {
    constexpr std::uint8_t kNone = 0x80;
    alignas(16) constexpr std::uint8_t kBlueRed[] = {2, 3, 10, 11, 2, 3, 10, 11, 2, 3, 10, 11, 2, 3, 10, 11};
    alignas(16) constexpr std::uint8_t kGreen[] = {6, 7, kNone, kNone, 6, 7, kNone, kNone,
                                                   6, 7, kNone, kNone, 6, 7, kNone, kNone};
    const Pixels d;
    const Colors d16;
    const auto greenAlpha = hn::Or(Taken(levels, kGreen), hn::Set(d, plain::kAlpha));
    return use(hn::Add(hn::BitCast(d16, Taken(levels, kBlueRed)),
                       hn::BitCast(d16, hn::Load(d, color.blueRed.data() + at))),
               hn::Add(hn::BitCast(d16, greenAlpha), hn::BitCast(d16, hn::Load(d, color.green.data() + at))));
}

// The same pixels after the stretch was laid over them.
HWY_INLINE hn::Vec<Pixels> Mixed(const LinearMixStretch& stretch, std::size_t at, hn::Vec<Pixels> levels,
                                 hn::Vec<Pixels> below) {
    alignas(16) constexpr std::uint8_t kWeight[] = {12, 13, 14, 15, 12, 13, 14, 15,
                                                    12, 13, 14, 15, 12, 13, 14, 15};
    alignas(16) constexpr std::uint8_t kTwice[] = {2, 3, 2, 3, 6, 7, 6, 7, 10, 11, 10, 11, 14, 15, 14, 15};
    const Pixels d;
    const auto fine = hn::Add(Taken(levels, kWeight), hn::Load(d, stretch.steps->weight.data() + at));
    const auto share = hn::BitCast(Colors(), Taken(fine, kTwice));
    return WithColors(*stretch.steps->color, at, levels, [&](auto even, auto odd) HWY_ATTR {
        return LaidOver(d, hn::MulHigh(even, share), hn::MulHigh(odd, share), below, hn::Not(share));
    });
}
HWY_INLINE hn::Vec<Pixels> Opaque(const LinearMixStretch& stretch, std::size_t at, hn::Vec<Pixels> levels) {
    return WithColors(*stretch.steps->color, at, levels, [](auto even, auto odd) HWY_ATTR {
        const auto high = hn::And(odd, hn::Set(Colors(), 0xFF00));
        return hn::BitCast(Pixels(), hn::Or(hn::ShiftRight<8>(even), high));
    });
}

// Whole blocks from x to `end`.
HWY_INLINE void MixBlocks(std::uint32_t* row, int x, int end, const LinearMixStretch& stretch,
                          std::ptrdiff_t toNextRow) {
    if (!stretch.steps || x == end)
        return;
    const Pixels d;
    auto levels = LevelsAt(x, stretch);
    const auto stride = hn::ShiftLeft<4>(hn::LoadDup128(d, stretch.steps->pixel.data()));
    static_assert(kBlock == 1 << 4);
    const auto forAll = [&](const auto& pixelsAt) HWY_ATTR {
        for (; x < end; x += kBlock, levels = hn::Add(levels, stride)) {
            hwy::Prefetch(row + x + toNextRow);
            for (std::size_t at = 0; at < kBlock; at += hn::Lanes(d))
                hn::StoreU(pixelsAt(at), d, row + x + at);
        }
    };
    if (!stretch.steps->opaque)
        forAll([&](std::size_t at)
                   HWY_ATTR { return Mixed(stretch, at, levels, hn::LoadU(d, row + x + at)); });
    else
        forAll([&](std::size_t at) HWY_ATTR { return Opaque(stretch, at, levels); });
}

// Pixels from x to `end`, at most a vector of them, through as many stretches as it takes.
HWY_INLINE void MixStretches(std::uint32_t* row, int block, int x, int end, int room,
                             const LinearMixStretch*& stretch) {
    const Pixels d;
    const auto place = hn::Iota(d, static_cast<std::uint32_t>(x));
    const auto before = [&](int other)
                            HWY_ATTR { return hn::Lt(place, hn::Set(d, static_cast<std::uint32_t>(other))); };
    const auto below = LoadPixels(d, row, x, room);
    auto mixed = below;
    for (int begin = x; begin < end; begin = stretch->end) {
        while (stretch->end <= begin)
            ++stretch;
        if (stretch->steps) {
            const auto at = static_cast<std::size_t>(x - block);
            const auto levels = LevelsAt(block, *stretch);
            const auto whole =
                stretch->steps->opaque ? Opaque(*stretch, at, levels) : Mixed(*stretch, at, levels, below);
            const auto part = hn::AndNot(before(begin), before(std::min(end, stretch->end)));
            mixed = hn::IfThenElse(part, whole, mixed);
        }
    }
    StorePixels(d, mixed, row, x, room);
}

// Blocks begin with the span, whatever the stretches and the vectors are.
void MixLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearMixStretch* stretch,
               std::ptrdiff_t toNextRow) {
    const Pixels d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    for (const PixelSpan& span : spans) {
        for (int block = span.begin; block < span.end;) {
            while (stretch->end <= block)
                ++stretch;
            const int inside = (std::min(stretch->end, span.end) - block) & ~(kBlock - 1);
            MixBlocks(row, block, block + inside, *stretch, toNextRow);
            block += inside;
            const int end = std::min(block + kBlock, span.end);
            hwy::Prefetch(row + block + toNextRow);
            for (int x = block; x < end; x += lanes)
                MixStretches(row, block, x, std::min(x + lanes, end), span.end, stretch);
            block = end;
        }
    }
}

#endif

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace easel::paint {

HWY_EXPORT(MixLinear);

void mixLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearMixStretch* stretches,
               std::ptrdiff_t toNextRow) {
    HWY_DYNAMIC_DISPATCH(MixLinear)(row, spans, stretches, toNextRow);
}

} // namespace easel::paint
#endif
