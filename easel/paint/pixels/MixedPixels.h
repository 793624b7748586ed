// Composing vectors of pixels of a row. Inner loops include it after hwy/highway.h, anew for every
// instruction set, hence the guard of its own kind.
#if defined(EASEL_PAINT_MIXED_PIXELS_H) == defined(HWY_TARGET_TOGGLE)
#ifdef EASEL_PAINT_MIXED_PIXELS_H
#undef EASEL_PAINT_MIXED_PIXELS_H
#else
#define EASEL_PAINT_MIXED_PIXELS_H
#endif

#include "hwy/highway.h"

#include "easel/paint/pixels/StorePixels.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

// The vector at index `at`; lanes at or beyond index `room` are 0.
template <class D> hwy::HWY_NAMESPACE::VFromD<D> LoadPixels(D d, const std::uint32_t* in, int at, int room) {
    namespace hn = hwy::HWY_NAMESPACE;
    if (at + static_cast<int>(hn::Lanes(d)) <= room)
        return hn::LoadU(d, in + at);
    HWY_ALIGN std::uint32_t whole[HWY_MAX_BYTES / sizeof(std::uint32_t)] = {};
    if (at < room)
        std::memcpy(whole, in + at, static_cast<std::size_t>(room - at) * sizeof whole[0]);
    return hn::Load(d, whole);
}

// Pixels that keep `rest` of 65536 parts of what was below. `even` and `odd` are what new colors add, in
// 256ths of a level and with their part of the half level that rounding needs: blue and red, green and alpha.
template <class D, class Below, class Half>
HWY_INLINE Below LaidOver(D d, Half even, Half odd, Below below, Half rest) {
    namespace hn = hwy::HWY_NAMESPACE;
    const hn::Repartition<std::uint16_t, D> d16;
    const auto half = hn::Set(d16, 0x0081);
    const auto levels = hn::Set(d16, 0xFF00);
    const auto old = hn::BitCast(d16, below);
    const auto blueRed = hn::Add(even, hn::MulHigh(hn::Or(hn::ShiftLeft<8>(old), half), rest));
    const auto greenAlpha = hn::Add(odd, hn::MulHigh(hn::Or(hn::And(old, levels), half), rest));
    return hn::BitCast(d, hn::Or(hn::ShiftRight<8>(blueRed), hn::And(greenAlpha, levels)));
}

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
