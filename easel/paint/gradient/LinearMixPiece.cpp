// Fixed-point form of a color span's opacity.
#include "easel/paint/gradient/LinearMixPiece.h"

namespace easel::paint {

namespace {

constexpr double kOne = 4294967296.0; // 2 to the 32
// So near to 0 and 1 the weights may come, lest rounding takes them beyond.
constexpr double kMargin = 1024;
// A 256th of a level, which makes up for what the products cut off.
constexpr std::uint32_t kMadeUp = 1 << 16;

} // namespace

LinearMixPiece::LinearMixPiece(const ColorSpan& colorSpan, const LinearPiece& color, double perPixel,
                               double opacity)
    : color_(&color), anchor_(colorSpan.anchor), reach_(colorSpan.reach),
      start_(colorSpan.color[3] * opacity * kOne), slope_(colorSpan.slope[3] * opacity * kOne) {
    // Towards 0, so that the weights do not run ahead of the exact ones and past their last one. Where a
    // color span is so steep that it ends within a pixel, only its first weight is ever used.
    const double step = std::clamp(slope_ * perPixel, -kOne, kOne);
    const LinearLevels& pixel = color.steps().pixel;
    steps_.pixel = {pixel[0], pixel[1], pixel[2],
                    static_cast<std::uint32_t>(static_cast<std::int64_t>(step))};
    for (std::uint32_t i = 0; i < kBlock; ++i)
        steps_.weight[i] = i * steps_.pixel[3];
    steps_.color = &color.steps();
    steps_.opaque = opacity == 1 && colorSpan.opaque();
}

void LinearMixPiece::layOut(int x, int end, double parameter, LinearMixStretch& stretch) const {
    stretch.end = end;
    stretch.steps = start_ == 0 && slope_ == 0 ? nullptr : &steps_;
    color_->layOut(x, parameter, stretch.origin.data());
    for (std::size_t i = 0; i < 3; ++i)
        stretch.origin[i] += kMadeUp;
    const double distance = std::clamp(parameter - anchor_, 0.0, reach_);
    const double weight = std::clamp(start_ + slope_ * distance, kMargin, kOne - kMargin);
    stretch.origin[3] = static_cast<std::uint32_t>(weight) - steps_.pixel[3] * static_cast<std::uint32_t>(x);
}

} // namespace easel::paint
