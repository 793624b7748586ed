// Inner loops. Multiplications and additions stay apart, since only some instruction sets can fuse them and
// the pixels must be the same on all.
#include "easel/paint/pixels/PixelKernels.h"

#include "easel/paint/pixels/PlainKernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/pixels/PixelKernels.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

#include "easel/paint/pixels/RadialDistances.h"
#include "easel/paint/pixels/StorePixels.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

void FillRadial(std::uint32_t* out, int count, int room, const RadialRun& run, const RadialColors& colors) {
    plain::fillRadial<float>(out, count, room, run, colors);
}
void FillRadialFar(std::uint32_t* out, int count, int room, const RadialRun& run,
                   const RadialColors& colors) {
    plain::fillRadial<double>(out, count, room, run, colors);
}
void BlendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    plain::blendPoints(row, color, points);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

// Two colors of 16 bits each lie in a 32-bit lane, and a pixel takes the high bytes of two such lanes: blue
// and red of one, green and alpha of the other. `distancesFrom(at)` gives the whole numbers nearest to the
// distances of the pixels from `at` on in the low halves of their lanes; the calls come in order.
template <class D, class Distances>
void FillAlongDistances(D d, std::uint32_t* out, int count, int room, const RadialColors& colors,
                        const Distances& distancesFrom) {
    const hn::Repartition<std::int16_t, D> d16;
    const auto highBytes = hn::Set(d, 0xFF00FF00);
    const auto blueRed = hn::BitCast(d16, hn::Set(d, colors.blueRed));
    const auto greenAlpha = hn::BitCast(d16, hn::Set(d, colors.greenAlpha));
    const auto blueRedSlope = hn::BitCast(d16, hn::Set(d, colors.blueRedSlope));
    const auto greenSlope = hn::BitCast(d16, hn::Set(d, colors.greenSlope));
    for (int at = 0; at < count; at += static_cast<int>(hn::Lanes(d))) {
        const auto distance = distancesFrom(at);
        const auto both =
            hn::OddEven(hn::BitCast(d16, hn::ShiftLeft<16>(distance)), hn::BitCast(d16, distance));
        const auto even = hn::BitCast(d, hn::Add(blueRed, hn::MulFixedPoint15(blueRedSlope, both)));
        const auto odd = hn::BitCast(d, hn::Add(greenAlpha, hn::MulFixedPoint15(greenSlope, both)));
        const auto evenBytes = hn::ShiftRight<8>(hn::And(even, highBytes));
        StorePixels(d, hn::Or(evenBytes, hn::And(odd, highBytes)), out, at, room);
    }
}

// The function from pixels' steps along a run to their distances as bits; `toBits` added to a distance leaves
// the nearest whole number in the lowest ones.
template <class D> auto BitsOfDistances(D d, const RadialRun& run, hn::TFromD<D> toBits) {
    return [distancesOf = DistancesOf(d, run), shift = hn::Set(d, toBits)](hn::VFromD<D> along) HWY_ATTR {
        return hn::BitCast(hn::RebindToUnsigned<D>(), hn::Add(distancesOf(along), shift));
    };
}

void FillRadial(std::uint32_t* out, int count, int room, const RadialRun& run, const RadialColors& colors) {
    const hn::ScalableTag<float> df;
    const hn::RebindToUnsigned<decltype(df)> d;
    const auto step = static_cast<float>(run.step);
    const auto stride = hn::Set(df, step * static_cast<float>(hn::Lanes(df)));
    const auto distancesOf = BitsOfDistances(df, run, 3.0F * (1 << 22));
    auto along = hn::Mul(hn::Set(df, step), hn::Iota(df, 0));
    FillAlongDistances(d, out, count, room, colors, [&](int) HWY_ATTR {
        const auto distances = distancesOf(along);
        along = hn::Add(along, stride);
        return distances;
    });
}

#if HWY_HAVE_FLOAT64
void FillRadialFar(std::uint32_t* out, int count, int room, const RadialRun& run,
                   const RadialColors& colors) {
    const hn::ScalableTag<double> df;
    const hn::Repartition<std::uint32_t, decltype(df)> d;
    const auto stride = hn::Set(df, run.step * static_cast<double>(hn::Lanes(df)));
    const auto distancesOf = BitsOfDistances(df, run, 3.0 * (std::int64_t{1} << 51));
    auto along = hn::Mul(hn::Set(df, run.step), hn::Iota(df, 0));
    FillAlongDistances(d, out, count, room, colors, [&](int) HWY_ATTR {
        const auto low = distancesOf(along);
        along = hn::Add(along, stride);
        const auto high = distancesOf(along);
        along = hn::Add(along, stride);
        return hn::ConcatEven(d, hn::BitCast(d, high), hn::BitCast(d, low));
    });
}
#else
void FillRadialFar(std::uint32_t* out, int count, int room, const RadialRun& run,
                   const RadialColors& colors) {
    plain::fillRadial<double>(out, count, room, run, colors);
}
#endif

// One pixel is one vector of four floats.
void BlendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    const hn::FixedTag<float, 4> df;
    const hn::FixedTag<std::int32_t, 4> di;
    const hn::FixedTag<std::uint8_t, 4> d8;
    const hn::FixedTag<std::uint32_t, 1> dPixel;
    const auto first = hn::Load(df, color.color.data());
    const auto slope = hn::Load(df, color.slope.data());
    for (const BlendPoint& point : points) {
        const auto level = hn::Add(first, hn::Mul(slope, hn::Set(df, point.distance)));
        const auto weight = hn::Set(df, (color.opacity + color.opacitySlope * point.distance) * point.share);
        const auto bytes = hn::BitCast(d8, hn::Set(dPixel, row[point.x]));
        const auto below = hn::ConvertTo(df, hn::PromoteTo(di, bytes));
        const auto mixed = hn::Add(below, hn::Mul(hn::Sub(level, below), weight));
        row[point.x] = hn::GetLane(hn::BitCast(dPixel, hn::DemoteTo(d8, hn::NearestInt(mixed))));
    }
}

#endif

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace easel::paint {

HWY_EXPORT(FillRadial);
HWY_EXPORT(FillRadialFar);
HWY_EXPORT(BlendPoints);

void fillRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run,
                const RadialColors& colors) {
    HWY_DYNAMIC_DISPATCH(FillRadial)(pixels, count, room, run, colors);
}

void fillRadialFar(std::uint32_t* pixels, int count, int room, const RadialRun& run,
                   const RadialColors& colors) {
    HWY_DYNAMIC_DISPATCH(FillRadialFar)(pixels, count, room, run, colors);
}

void blendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    HWY_DYNAMIC_DISPATCH(BlendPoints)(row, color, points);
}

} // namespace easel::paint
#endif
