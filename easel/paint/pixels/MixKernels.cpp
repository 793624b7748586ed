// Inner loops with opacity: colors and weights in single precision, what they add to a pixel and what is kept
// of it in whole numbers.
#include "easel/paint/pixels/MixKernels.h"

#include "easel/paint/pixels/PlainMixKernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/pixels/MixKernels.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

#include "easel/paint/pixels/MixedPixels.h"
#include "easel/paint/pixels/RadialDistances.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

void MixRadial(std::uint32_t* pixels, int count, int, const RadialRun& run, const MixColors& colors) {
    plain::mixRadial<float>(pixels, count, run, colors);
}
void MixRadialFar(std::uint32_t* pixels, int count, int, const RadialRun& run, const MixColors& colors) {
    plain::mixRadial<double>(pixels, count, run, colors);
}
void MixFlat(std::uint32_t* pixels, int count, int, const MixColors& colors) {
    plain::mixFlat(pixels, count, colors);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

using Distances = hn::ScalableTag<float>;
using Pixels = hn::RebindToUnsigned<Distances>;
using Halves = hn::Repartition<std::uint16_t, Pixels>;

// The whole numbers nearest to two vectors, in the low and in the high halves of the lanes.
HWY_INLINE hn::Vec<Halves> Paired(hn::Vec<Distances> low, hn::Vec<Distances> high) {
    const Pixels d;
    const auto toBits = hn::Set(Distances(), plain::kToBits);
    const auto raised = hn::ShiftLeft<16>(hn::BitCast(d, hn::Add(high, toBits)));
    return hn::OddEven(hn::BitCast(Halves(), raised), hn::BitCast(Halves(), hn::Add(low, toBits)));
}

// The function from distances and the pixels there to the pixels after the colors were laid over them.
HWY_INLINE auto MixerOf(const MixColors& colors) {
    const auto all = [](float value) HWY_ATTR { return hn::Set(Distances(), value); };
    return [all, blue = all(colors.color[0]), green = all(colors.color[1]), red = all(colors.color[2]),
            blueSlope = all(colors.slope[0]), greenSlope = all(colors.slope[1]),
            redSlope = all(colors.slope[2]), weightOf0 = all(colors.weight),
            weightSlope = all(colors.weightSlope)](hn::Vec<Distances> distance, hn::Vec<Pixels> below)
               HWY_ATTR {
                   const auto exact = hn::Add(weightOf0, hn::Mul(weightSlope, distance));
                   const auto weight = hn::Min(hn::Max(exact, all(0)), all(1));
                   const auto part = [&](auto color, auto slope) HWY_ATTR {
                       return hn::Mul(hn::Add(color, hn::Mul(slope, distance)), weight);
                   };
                   const auto even = Paired(part(blue, blueSlope), part(red, redSlope));
                   const auto odd = Paired(part(green, greenSlope), hn::Mul(all(plain::kAlphaLevel), weight));
                   const auto rest = hn::Sub(all(plain::kAllParts), hn::Mul(all(plain::kTakenParts), weight));
                   return LaidOver(Pixels(), even, odd, below, Paired(rest, rest));
               };
}

// `mixed(below)` gives vectors of mixed pixels; the calls come in order.
template <class Mixed>
HWY_INLINE void MixAll(std::uint32_t* pixels, int count, int room, const Mixed& mixed) {
    const Pixels d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    int at = 0;
    for (; at + lanes <= count; at += lanes)
        hn::StoreU(mixed(hn::LoadU(d, pixels + at)), d, pixels + at);
    if (at == count)
        return;
    const auto below = LoadPixels(d, pixels, at, room);
    const auto ours = hn::FirstN(d, static_cast<std::size_t>(count - at));
    StorePixels(d, hn::IfThenElse(ours, mixed(below), below), pixels, at, room);
}

void MixRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run, const MixColors& colors) {
    const Distances d;
    const auto step = static_cast<float>(run.step);
    const auto stride = hn::Set(d, step * static_cast<float>(hn::Lanes(d)));
    const auto distancesOf = DistancesOf(d, run);
    const auto mixer = MixerOf(colors);
    auto along = hn::Mul(hn::Set(d, step), hn::Iota(d, 0));
    MixAll(pixels, count, room, [&](hn::Vec<Pixels> below) HWY_ATTR {
        const auto distances = distancesOf(along);
        along = hn::Add(along, stride);
        return mixer(distances, below);
    });
}

#if HWY_HAVE_FLOAT64
void MixRadialFar(std::uint32_t* pixels, int count, int room, const RadialRun& run, const MixColors& colors) {
    const hn::Repartition<double, Distances> d;
    const hn::Rebind<float, decltype(d)> dHalf;
    const auto stride = hn::Set(d, run.step * static_cast<double>(hn::Lanes(d)));
    const auto distancesOf = DistancesOf(d, run);
    const auto mixer = MixerOf(colors);
    auto along = hn::Mul(hn::Set(d, run.step), hn::Iota(d, 0));
    const auto next = [&]() HWY_ATTR {
        const auto distances = hn::DemoteTo(dHalf, distancesOf(along));
        along = hn::Add(along, stride);
        return distances;
    };
    MixAll(pixels, count, room, [&](hn::Vec<Pixels> below) HWY_ATTR {
        const auto low = next();
        const auto high = next();
        return mixer(hn::Combine(Distances(), high, low), below);
    });
}
#else
void MixRadialFar(std::uint32_t* pixels, int count, int, const RadialRun& run, const MixColors& colors) {
    plain::mixRadial<double>(pixels, count, run, colors);
}
#endif

void MixFlat(std::uint32_t* pixels, int count, int room, const MixColors& colors) {
    const auto mixer = MixerOf(colors);
    MixAll(pixels, count, room,
           [&](hn::Vec<Pixels> below) HWY_ATTR { return mixer(hn::Zero(Distances()), below); });
}

#endif

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace easel::paint {

HWY_EXPORT(MixRadial);
HWY_EXPORT(MixRadialFar);
HWY_EXPORT(MixFlat);

void mixRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run, const MixColors& colors) {
    HWY_DYNAMIC_DISPATCH(MixRadial)(pixels, count, room, run, colors);
}

void mixRadialFar(std::uint32_t* pixels, int count, int room, const RadialRun& run, const MixColors& colors) {
    HWY_DYNAMIC_DISPATCH(MixRadialFar)(pixels, count, room, run, colors);
}

void mixFlat(std::uint32_t* pixels, int count, int room, const MixColors& colors) {
    HWY_DYNAMIC_DISPATCH(MixFlat)(pixels, count, room, colors);
}

} // namespace easel::paint
#endif
