// How far pixels are along a radial run, many at a time. Inner loops include it after hwy/highway.h, anew for
// every instruction set, hence the guard of its own kind.
#if defined(EASEL_PAINT_RADIAL_DISTANCES_H) == defined(HWY_TARGET_TOGGLE)
#ifdef EASEL_PAINT_RADIAL_DISTANCES_H
#undef EASEL_PAINT_RADIAL_DISTANCES_H
#else
#define EASEL_PAINT_RADIAL_DISTANCES_H
#endif

#include "hwy/highway.h"

#include "easel/paint/pixels/PixelKernels.h"

HWY_BEFORE_NAMESPACE();
namespace easel::paint::HWY_NAMESPACE {

// The function from pixels' steps along a run to their distances. Multiplications and additions stay apart,
// since only some instruction sets can fuse them and the pixels must be the same on all.
template <class D> HWY_INLINE auto DistancesOf(D d, const RadialRun& run) {
    namespace hn = hwy::HWY_NAMESPACE;
    const auto all = [d](double value) HWY_ATTR { return hn::Set(d, static_cast<hn::TFromD<D>>(value)); };
    return [offset = all(run.offset), height = all(run.height), lean = all(run.lean),
            reference = all(run.reference)](hn::VFromD<D> along) HWY_ATTR {
        const auto u = hn::Add(offset, along);
        const auto root = hn::Sqrt(hn::Add(hn::Mul(u, u), height));
        return hn::Add(hn::Add(root, hn::Mul(lean, u)), reference);
    };
}

} // namespace easel::paint::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
