// Inner loops with opacity. Colors are whole numbers as for opaque pixels; the share of the pixel that they
// take is found in single precision, so that nothing but its own rounding adds to theirs.
#include "easel/paint/pixels/MixKernels.h"

#include "easel/paint/pixels/PlainMixKernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/pixels/MixKernels.cpp"
#include "hwy/cache_control.h"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

#include "easel/paint/pixels/MixedPixels.h"
#include "easel/paint/pixels/RadialDistances.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

void MixRadial(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    plain::mixRadial<float>(range, run, colors);
}
void MixRadialFar(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    plain::mixRadial<double>(range, run, colors);
}
void MixFlat(const MixRange& range, const FlatMix& color) {
    plain::mixFlat(range, color);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

using Distances = hn::ScalableTag<float>;
using Pixels = hn::RebindToUnsigned<Distances>;
using Halves = hn::Repartition<std::uint16_t, Pixels>;

// The whole numbers nearest to a vector, in both halves of the lanes.
HWY_INLINE hn::Vec<Halves> Doubled(hn::Vec<Distances> numbers) {
    alignas(16) constexpr std::uint8_t kTwice[] = {0, 1, 0, 1, 4, 5, 4, 5, 8, 9, 8, 9, 12, 13, 12, 13};
    const hn::Repartition<std::uint8_t, Pixels> d8;
    const auto bits = hn::BitCast(d8, hn::Add(numbers, hn::Set(Distances(), plain::kToBits)));
    return hn::BitCast(Halves(), hn::TableLookupBytes(bits, hn::LoadDup128(d8, kTwice)));
}

// The function from distances and the pixels there to the pixels after the colors were laid over them.
HWY_INLINE auto MixerOf(const MixColors& mix) {
    const hn::RebindToSigned<Halves> d16;
    const auto pairs = [](std::uint32_t both) HWY_ATTR {
        return hn::BitCast(hn::RebindToSigned<Halves>(), hn::Set(Pixels(), both));
    };
    const Distances d;
    return [=, blueRed = pairs(mix.colors.blueRed), greenAlpha = pairs(mix.colors.greenAlpha),
            blueRedSlope = pairs(mix.colors.blueRedSlope), greenSlope = pairs(mix.colors.greenSlope),
            shareOf0 = hn::Set(d, mix.share), shareSlope = hn::Set(d, mix.shareSlope),
            least = hn::Set(d, plain::kLeastShare), most = hn::Set(d, plain::kMostShare)](
               hn::Vec<Distances> distance, hn::Vec<Pixels> below) HWY_ATTR {
        const auto exact = hn::Add(shareOf0, hn::Mul(shareSlope, distance));
        const auto share = Doubled(hn::Min(hn::Max(exact, least), most));
        const auto whole = hn::BitCast(d16, Doubled(distance));
        const auto part = [&](auto base, auto slope) HWY_ATTR {
            const auto color = hn::Add(base, hn::MulFixedPoint15(slope, whole));
            return hn::MulHigh(hn::BitCast(Halves(), color), share);
        };
        return LaidOver(Pixels(), part(blueRed, blueRedSlope), part(greenAlpha, greenSlope), below,
                        hn::Sub(hn::Zero(Halves()), share));
    };
}

// Less than a vector.
template <class Mixed> HWY_INLINE void MixFew(const MixRange& range, const Mixed& mixed) {
    const Pixels d;
    const auto ours = hn::FirstN(d, static_cast<std::size_t>(range.count));
    const auto below = LoadPixels(d, range.first, 0, range.room);
    StorePixels(d, hn::IfThenElse(ours, mixed(below), below), range.first, 0, range.room);
}

// `startAt(index)` is where a vector that begins with the pixel lies along the run; `next(along)` gives what
// the colors there depend on, and goes on by a vector; `mixed(distances, below)` gives the mixed pixels.
// Distances are found two vectors early, so that there are pixels to mix while square roots are taken. The
// last vector ends with the last pixel, read before the others are written over: so no pixel of the next
// piece is touched, whose reading would have to wait for that.
template <class StartAt, class Next, class Mixed>
HWY_INLINE void MixAll(const MixRange range, const StartAt& startAt, const Next& next, const Mixed& mixed) {
    const Pixels d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    auto along = startAt(0);
    auto present = next(along);
    if (range.count < lanes)
        return MixFew(range, [&](hn::Vec<Pixels> below) HWY_ATTR { return mixed(present, below); });
    std::uint32_t* const last = range.first + range.count - lanes;
    auto lastAlong = startAt(range.count - lanes);
    const auto lastPixels = mixed(next(lastAlong), hn::LoadU(d, last));
    auto second = next(along);
    for (std::uint32_t* pixels = range.first; pixels < last; pixels += lanes) {
        const auto third = next(along);
        hwy::Prefetch(pixels + range.toNextRow);
        hn::StoreU(mixed(present, hn::LoadU(d, pixels)), d, pixels);
        present = second;
        second = third;
    }
    hwy::Prefetch(last + range.toNextRow);
    hn::StoreU(lastPixels, d, last);
}

void MixRadial(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    const Distances d;
    const auto step = hn::Set(d, static_cast<float>(run.step));
    const auto stride = hn::Mul(step, hn::Set(d, static_cast<float>(hn::Lanes(d))));
    const auto distancesOf = DistancesOf(d, run);
    const auto startAt = [&](int at) HWY_ATTR { return hn::Mul(step, hn::Iota(d, static_cast<float>(at))); };
    const auto next = [&](hn::Vec<Distances>& along) HWY_ATTR {
        const auto distances = distancesOf(along);
        along = hn::Add(along, stride);
        return distances;
    };
    MixAll(range, startAt, next, MixerOf(colors));
}

#if HWY_HAVE_FLOAT64
void MixRadialFar(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    const hn::Repartition<double, Distances> d;
    const hn::Rebind<float, decltype(d)> dHalf;
    const auto step = hn::Set(d, run.step);
    const auto stride = hn::Mul(step, hn::Set(d, static_cast<double>(hn::Lanes(d))));
    const auto distancesOf = DistancesOf(d, run);
    const auto startAt = [&](int at) HWY_ATTR { return hn::Mul(step, hn::Iota(d, at)); };
    const auto nextHalf = [&](hn::Vec<decltype(d)>& along) HWY_ATTR {
        const auto distances = hn::DemoteTo(dHalf, distancesOf(along));
        along = hn::Add(along, stride);
        return distances;
    };
    const auto next = [&](hn::Vec<decltype(d)>& along) HWY_ATTR {
        const auto low = nextHalf(along);
        const auto high = nextHalf(along);
        return hn::Combine(Distances(), high, low);
    };
    MixAll(range, startAt, next, MixerOf(colors));
}
#else
void MixRadialFar(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    plain::mixRadial<double>(range, run, colors);
}
#endif

void MixFlat(const MixRange& range, const FlatMix& color) {
    const Pixels d;
    const Halves d16;
    const auto even = hn::BitCast(d16, hn::Set(d, color.blueRed));
    const auto odd = hn::BitCast(d16, hn::Set(d, color.greenAlpha));
    const auto rest = hn::Set(d16, color.rest);
    const auto anywhere = [](int at) { return at; };
    MixAll(range, anywhere, anywhere,
           [=](int, hn::Vec<Pixels> below) HWY_ATTR { return LaidOver(Pixels(), even, odd, below, rest); });
}

#endif

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace easel::paint {

HWY_EXPORT(MixRadial);
HWY_EXPORT(MixRadialFar);
HWY_EXPORT(MixFlat);

void mixRadial(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    HWY_DYNAMIC_DISPATCH(MixRadial)(range, run, colors);
}

void mixRadialFar(const MixRange& range, const RadialRun& run, const MixColors& colors) {
    HWY_DYNAMIC_DISPATCH(MixRadialFar)(range, run, colors);
}

void mixFlat(const MixRange& range, const FlatMix& color) {
    HWY_DYNAMIC_DISPATCH(MixFlat)(range, color);
}

} // namespace easel::paint
#endif
