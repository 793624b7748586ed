// Whole-number form of a color span.
#include "easel/paint/gradient/RadialPiece.h"

#include <cmath>

namespace easel::paint {

namespace {

// Distances and slopes of 16 bits, with some room for rounding, share the 2 to the 15 units between them.
constexpr double kDistanceUnitsPerLevel = 256 * 32768.0 / 32704.0;
constexpr double kWholeDistance = 32768;
// The half level that rounding needs, in 256ths.
constexpr double kHalfLevel = 128;
// 255 with the half level, the unit that makes up for what products cut off, and one more, so that no
// rounding lets a color exceed its alpha.
constexpr std::uint32_t kAlpha = 0xFF82;
constexpr double kWholePixel = 65536;

// Nine significant bits, so that its products with the numbers of pixels in a row are exact in single
// precision.
double fewBits(double value) {
    int exponent = 0;
    const double fraction = std::frexp(value, &exponent);
    return std::ldexp(std::nearbyint(fraction * 512) / 512, exponent);
}

// Nothing where a color span is so steep that its numbers overflow; it is not painted from them then.
std::uint32_t half(double value) {
    if (!(std::abs(value) <= 0xFFFF))
        return 0;
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(std::floor(value + 0.5))) & 0xFFFF;
}

} // namespace

RadialPiece::RadialPiece(const RadialRows& rows, const ColorSpan& colorSpan, double opacity)
    : circle_(rows.circle(colorSpan.start)), flat_(colorSpan.flat()),
      middle_(colorSpan.anchor + colorSpan.reach / 2) {
    const bool visible = opacity > 0 && (colorSpan.color[3] != 0 || colorSpan.slope[3] != 0);
    look_ = !visible ? Look::Hidden : opacity == 1 && colorSpan.opaque() ? Look::Opaque : Look::Mixed;
    if (!flat_ && visible) {
        const double steepest = std::max(colorSpan.steepest, 255 * opacity * std::abs(colorSpan.slope[3]));
        step_ = fewBits(steepest * kDistanceUnitsPerLevel * rows.scale());
        toUnits_ = step_ / rows.scale();
    }
    if (look_ == Look::Opaque)
        setColors(colorSpan, kHalfLevel);
    else if (look_ == Look::Mixed && flat_)
        setFlatMix(colorSpan.color, colorSpan.color[3] * opacity);
    else if (look_ == Look::Mixed)
        setMix(colorSpan, opacity);
}

void RadialPiece::setColors(const ColorSpan& colorSpan, double rounding) {
    std::array<std::uint32_t, 3> color;
    std::array<std::uint32_t, 3> slope{};
    const Channels middle = colorSpan.at(middle_);
    const double farthest = colorSpan.reach / 2 * toUnits_ + 1; // units from the middle
    for (std::size_t i = 0; i < color.size(); ++i) {
        color[i] = half(middle[i] * 256 + rounding);
        if (!flat_)
            slope[i] = half(colorSpan.slope[i] * 256 / toUnits_ * kWholeDistance);
        if (slope[i] == 0)
            continue;
        const double change = std::abs(static_cast<std::int16_t>(slope[i])) * farthest / kWholeDistance;
        color[i] = std::min(color[i], kAlpha - static_cast<std::uint32_t>(std::lrint(change)));
    }
    mix_.colors = {color[2] << 16 | color[0], kAlpha << 16 | color[1], slope[2] << 16 | slope[0], slope[1]};
}

void RadialPiece::setMix(const ColorSpan& colorSpan, double opacity) {
    constexpr double kCutOff = 1; // what products cut off
    setColors(colorSpan, kHalfLevel + kCutOff);
    mix_.share = static_cast<float>(colorSpan.at(middle_)[3] * opacity * kWholePixel);
    mix_.shareSlope = static_cast<float>(colorSpan.slope[3] * opacity / toUnits_ * kWholePixel);
}

void RadialPiece::setFlatMix(const Channels& color, double weight) {
    const auto part = [weight](double level) { return half((level * 256 + kHalfLevel) * weight); };
    // A unit more, so that no rounding lets a color exceed its alpha.
    const std::uint32_t alpha = half((255 * 256 + kHalfLevel + 1) * weight);
    const double rest = std::min(kWholePixel * (1 - weight), kWholePixel - 1);
    flatMix_ = {part(color[2]) << 16 | part(color[0]), alpha << 16 | part(color[1]),
                static_cast<std::uint16_t>(half(rest))};
}

void RadialPiece::paint(const MixRange& range, int begin, const RadialRow& row) const {
    if (look_ == Look::Opaque)
        fill(range.first, begin, begin + range.count, range.room, row);
    else if (look_ == Look::Mixed)
        mix(range, begin, row);
}

void RadialPiece::fill(std::uint32_t* pixels, int begin, int end, int room, const RadialRow& row) const {
    const RadialColors& colors = mix_.colors;
    if (flat_) {
        const std::uint32_t blueRed = colors.blueRed >> 8 & 0xFF00FF;
        std::fill_n(pixels, end - begin, blueRed | (colors.greenAlpha & 0xFF00FF00));
        return;
    }
    const bool near = unitsAcross(row, begin, end) <= kMostUnitsInSinglePrecision;
    (near ? fillRadial : fillRadialFar)(pixels, end - begin, room, runFrom(begin, row), colors);
}

void RadialPiece::mix(const MixRange& range, int begin, const RadialRow& row) const {
    if (flat_)
        return mixFlat(range, flatMix_);
    const bool near = unitsAcross(row, begin, begin + range.count) <= kMostUnitsInSinglePrecision;
    (near ? mixRadial : mixRadialFar)(range, runFrom(begin, row), mix_);
}

RadialRun RadialPiece::runFrom(int begin, const RadialRow& row) const {
    return {(begin - row.lowest) * step_, row.height * step_ * step_, row.lean,
            (row.base - middle_) * toUnits_, step_};
}

} // namespace easel::paint
