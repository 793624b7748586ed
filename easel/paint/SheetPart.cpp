#include "easel/paint/SheetPart.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

namespace {

// What is seen is kept to multiples of so many pixels.
constexpr int kTile = 256;

PixelPoint wholePixels(double x, double y) {
    const auto whole = [](double value) {
        return static_cast<int>(std::lrint(std::clamp(value, -1e9, 1e9)));
    };
    return {whole(x), whole(y)};
}

PixelRect movedBy(const PixelRect& rect, PixelPoint by) {
    return {.left = rect.left + by.h,
            .top = rect.top + by.v,
            .right = rect.right + by.h,
            .bottom = rect.bottom + by.v};
}

int tileBefore(int at) {
    return (at >= 0 ? at : at - kTile + 1) / kTile * kTile;
}

double withoutRounding(double at) {
    constexpr double kNoise = 1e-6;
    return std::abs(at - std::round(at)) < kNoise ? std::round(at) : at;
}

} // namespace

SheetPart partOf(const drawing::Affine& toSheet, const PixelRect& seen, const drawing::Affine& toSurface) {
    const PixelPoint origin = wholePixels(std::floor(toSheet.e), std::floor(toSheet.f));
    const PixelPoint back{-origin.h, -origin.v};
    return {drawing::Affine::translation(back.h, back.v) * toSheet, movedBy(seen, back),
            wholePixels(toSurface.e - toSheet.e + origin.h, toSurface.f - toSheet.f + origin.v)};
}

SheetPart steadyPartOf(const drawing::Affine& toSheet, const PixelRect& seen,
                       const drawing::Affine& toSurface) {
    drawing::Affine steady = toSheet;
    steady.e = withoutRounding(toSheet.e);
    steady.f = withoutRounding(toSheet.f);
    SheetPart part = partOf(steady, seen, toSurface);
    part.seen = {.left = tileBefore(part.seen.left),
                 .top = tileBefore(part.seen.top),
                 .right = tileBefore(part.seen.right + kTile - 1),
                 .bottom = tileBefore(part.seen.bottom + kTile - 1)};
    return part;
}

} // namespace easel::paint
