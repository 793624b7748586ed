// Writing vectors of pixels to a row. Inner loops include it after hwy/highway.h, anew for every instruction
// set, hence the guard of its own kind.
#if defined(EASEL_PAINT_STORE_PIXELS_H) == defined(HWY_TARGET_TOGGLE)
#ifdef EASEL_PAINT_STORE_PIXELS_H
#undef EASEL_PAINT_STORE_PIXELS_H
#else
#define EASEL_PAINT_STORE_PIXELS_H
#endif

#include "hwy/highway.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

// Writes a vector at index `at`, but nothing at or beyond index `room`. Not with a masked store: what is read
// next to one has to wait for it, and the edge pixels that follow are read.
template <class D, class V> void StorePixels(D d, V pixels, std::uint32_t* out, int at, int room) {
    namespace hn = hwy::HWY_NAMESPACE;
    const int lanes = static_cast<int>(hn::Lanes(d));
    if (at + lanes <= room)
        hn::StoreU(pixels, d, out + at);
    else if (at < room) {
        HWY_ALIGN std::uint32_t whole[HWY_MAX_BYTES / sizeof(std::uint32_t)];
        hn::Store(pixels, d, whole);
        std::memcpy(out + at, whole, static_cast<std::size_t>(room - at) * sizeof whole[0]);
    }
}

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
