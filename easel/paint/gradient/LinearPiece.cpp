// Fixed-point form of a color span.
#include "easel/paint/gradient/LinearPiece.h"

namespace easel::paint {

namespace {

constexpr double kUnits = 1 << 24; // of a level
// Half a level rounds the pixel, and half of what the shift to 256ths cuts off rounds the block.
constexpr double kRounding = (0.5 + 0.5 / 256) * kUnits;

std::uint32_t nearestUnit(double value) {
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(value + (value < 0 ? -0.5 : 0.5)));
}

} // namespace

LinearPiece::LinearPiece(const ColorSpan& colorSpan, double perPixel)
    : anchor_(colorSpan.anchor), reach_(colorSpan.reach) {
    for (std::size_t i = 0; i < start_.size(); ++i) {
        start_[i] = colorSpan.color[i] * kUnits + kRounding;
        slope_[i] = colorSpan.slope[i] * kUnits;
        // Where a color span is so steep that it ends within a pixel, only its first color is ever used.
        const double step = std::clamp(colorSpan.slope[i] * perPixel, -256.0, 256.0) * kUnits;
        steps_.pixel[i] = nearestUnit(step);
    }
    constexpr std::uint32_t kHalf = 1U << 15;
    for (std::uint32_t i = 0; i < kBlock; ++i) {
        steps_.blueRed[i] =
            (i * steps_.pixel[0] + kHalf) >> 16 | ((i * steps_.pixel[2] + kHalf) & 0xFFFF0000);
        steps_.green[i] = (i * steps_.pixel[1] + kHalf) >> 16;
    }
}

void LinearPiece::layOut(int x, double parameter, std::uint32_t* origin) const {
    const double distance = std::clamp(parameter - anchor_, 0.0, reach_);
    for (std::size_t i = 0; i < start_.size(); ++i)
        origin[i] = static_cast<std::uint32_t>(static_cast<std::int64_t>(start_[i] + slope_[i] * distance)) -
                    steps_.pixel[i] * static_cast<std::uint32_t>(x);
}

} // namespace easel::paint
