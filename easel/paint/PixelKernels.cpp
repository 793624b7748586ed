// Inner loops. Multiplications and additions stay apart, since only some instruction sets can fuse them and
// the pixels must be the same on all.
#include "easel/paint/PixelKernels.h"

#include "easel/paint/PlainKernels.h"

#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "easel/paint/PixelKernels.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

void FillLinear(std::uint32_t* out, int count, int room, const LinearStart& start, const LinearSteps& steps) {
    plain::fillLinear(out, count, room, start, steps);
}
void FillRadial(std::uint32_t* out, int count, int room, const RadialRun& run) {
    plain::fillRadial(out, count, room, run);
}
void BlendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    plain::blendPoints(row, color, points);
}

#else

namespace hn = hwy::HWY_NAMESPACE;

constexpr std::uint32_t kOpaque = 0xFF000000;

// Writes a vector at index `at`, but nothing at or beyond index `room`. Not with a masked store: what is read
// next to one has to wait for it, and the edge pixels that follow are read.
template <class D, class V> void StorePixels(D d, V pixels, std::uint32_t* out, int at, int room) {
    const int lanes = static_cast<int>(hn::Lanes(d));
    if (at + lanes <= room)
        hn::StoreU(pixels, d, out + at);
    else if (at < room) {
        HWY_ALIGN std::uint32_t whole[HWY_MAX_BYTES / 4];
        hn::Store(pixels, d, whole);
        std::memcpy(out + at, whole, static_cast<std::size_t>(room - at) * 4);
    }
}

// Two colors of 16 bits each lie in a 32-bit lane, and a pixel takes the high bytes of two such lanes: blue
// and red of one, green and alpha of the other.
void FillLinear(std::uint32_t* out, int count, int room, const LinearStart& start, const LinearSteps& steps) {
    const hn::ScalableTag<std::uint32_t> d;
    const hn::Repartition<std::uint16_t, decltype(d)> d16;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto highBytes = hn::Set(d, 0xFF00FF00);
    std::uint32_t blue = start[0];
    std::uint32_t green = start[1];
    std::uint32_t red = start[2];
    for (int block = 0; block < count; block += kBlock) {
        const auto blueRed = hn::BitCast(d16, hn::Set(d, (red & 0xFFFF0000) | (blue >> 16)));
        const auto greenAlpha = hn::BitCast(d16, hn::Set(d, kOpaque | (green >> 16)));
        for (int i = 0; i < kBlock; i += lanes) {
            const auto even = hn::Add(blueRed, hn::BitCast(d16, hn::Load(d, steps.blueRed.data() + i)));
            const auto odd = hn::Add(greenAlpha, hn::BitCast(d16, hn::Load(d, steps.green.data() + i)));
            const auto pixels =
                hn::Or(hn::BitCast(d, hn::ShiftRight<8>(even)), hn::And(hn::BitCast(d, odd), highBytes));
            StorePixels(d, pixels, out, block + i, room);
        }
        blue += steps.block[0];
        green += steps.block[1];
        red += steps.block[2];
    }
}

void FillRadial(std::uint32_t* out, int count, int room, const RadialRun& run) {
    const hn::ScalableTag<float> df;
    const hn::RebindToUnsigned<decltype(df)> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto offset = hn::Set(df, run.offset);
    const auto height = hn::Set(df, run.height);
    const auto lean = hn::Set(df, run.lean);
    const auto reference = hn::Set(df, run.reference);
    const auto stride = hn::Set(df, static_cast<float>(lanes));
    // Added to a level, it leaves the nearest whole number in the lowest bits, and above them bits that the
    // shifts below push out or the alpha hides.
    const auto toBits = hn::Set(df, 8388608.0F); // 2 to the 23
    auto index = hn::Iota(df, 0);
    for (int at = 0; at < count; at += lanes) {
        const auto u = hn::Add(offset, index);
        const auto root = hn::Sqrt(hn::Add(hn::Mul(u, u), height));
        const auto way = hn::Sub(hn::Add(root, hn::Mul(lean, u)), reference);
        const auto channel = [&](std::size_t i) HWY_ATTR {
            const auto level = hn::Add(hn::Set(df, run.color[i]), hn::Mul(hn::Set(df, run.slope[i]), way));
            return hn::BitCast(d, hn::Add(level, toBits));
        };
        const auto greenRed = hn::Or(hn::ShiftLeft<8>(channel(1)), hn::ShiftLeft<16>(channel(2)));
        const auto pixels = hn::Or(hn::Or(channel(0), hn::Set(d, kOpaque)), greenRed);
        StorePixels(d, pixels, out, at, room);
        index = hn::Add(index, stride);
    }
}

// One pixel is one vector of four floats.
void BlendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    const hn::FixedTag<float, 4> df;
    const hn::FixedTag<std::int32_t, 4> di;
    const hn::FixedTag<std::uint8_t, 4> d8;
    const hn::FixedTag<std::uint32_t, 1> dPixel;
    const auto first = hn::Load(df, color.color.data());
    const auto slope = hn::Load(df, color.slope.data());
    for (const BlendPoint& point : points) {
        const auto level = hn::Add(first, hn::Mul(slope, hn::Set(df, point.way)));
        const auto weight = hn::Set(df, (color.opacity + color.opacitySlope * point.way) * point.share);
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

HWY_EXPORT(FillLinear);
HWY_EXPORT(FillRadial);
HWY_EXPORT(BlendPoints);

void fillLinear(std::uint32_t* pixels, int count, int room, const LinearStart& start,
                const LinearSteps& steps) {
    HWY_DYNAMIC_DISPATCH(FillLinear)(pixels, count, room, start, steps);
}

void fillRadial(std::uint32_t* pixels, int count, int room, const RadialRun& run) {
    HWY_DYNAMIC_DISPATCH(FillRadial)(pixels, count, room, run);
}

void blendPoints(std::uint32_t* row, const BlendColor& color, std::span<const BlendPoint> points) {
    HWY_DYNAMIC_DISPATCH(BlendPoints)(row, color, points);
}

} // namespace easel::paint
#endif
