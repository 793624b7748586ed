// Whole-number form of a color span.
#include "easel/paint/gradient/RadialPiece.h"

#include <cmath>

namespace easel::paint {

namespace {

// Distances and slopes of 16 bits, with some room for rounding, share the 2 to the 15 units between them.
constexpr double kDistanceUnitsPerLevel = 256 * 32768.0 / 32704.0;
constexpr double kWholeDistance = 32768;

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
        setColors(colorSpan);
    else if (look_ == Look::Mixed)
        setMixColors(colorSpan, opacity);
}

void RadialPiece::setColors(const ColorSpan& colorSpan) {
    std::array<std::uint32_t, 3> color;
    std::array<std::uint32_t, 3> slope{};
    const Channels middle = colorSpan.at(middle_);
    for (std::size_t i = 0; i < color.size(); ++i) {
        color[i] = half(middle[i] * 256 + 128);
        if (!flat_)
            slope[i] = half(colorSpan.slope[i] * 256 / toUnits_ * kWholeDistance);
    }
    colors_ = {color[2] << 16 | color[0], 0xFF000000 | color[1], slope[2] << 16 | slope[0], slope[1]};
}

void RadialPiece::setMixColors(const ColorSpan& colorSpan, double opacity) {
    const Channels middle = colorSpan.at(middle_);
    for (std::size_t i = 0; i < mixColors_.color.size(); ++i) {
        mixColors_.color[i] = static_cast<float>(mixLevelOf(middle[i]));
        if (!flat_)
            mixColors_.slope[i] = static_cast<float>(colorSpan.slope[i] * 256 / toUnits_);
    }
    mixColors_.weight = static_cast<float>(middle[3] * opacity);
    if (!flat_)
        mixColors_.weightSlope = static_cast<float>(colorSpan.slope[3] * opacity / toUnits_);
}

void RadialPiece::paint(std::uint32_t* pixels, int begin, int end, int room, const RadialRow& row) const {
    if (look_ == Look::Opaque)
        fill(pixels, begin, end, room, row);
    else if (look_ == Look::Mixed)
        mix(pixels, begin, end, room, row);
}

void RadialPiece::fill(std::uint32_t* pixels, int begin, int end, int room, const RadialRow& row) const {
    if (flat_) {
        const std::uint32_t blueRed = colors_.blueRed >> 8 & 0xFF00FF;
        std::fill_n(pixels, end - begin, blueRed | (colors_.greenAlpha & 0xFF00FF00));
        return;
    }
    const bool near = unitsAcross(row, begin, end) <= kMostUnitsInSinglePrecision;
    (near ? fillRadial : fillRadialFar)(pixels, end - begin, room, runFrom(begin, row), colors_);
}

void RadialPiece::mix(std::uint32_t* pixels, int begin, int end, int room, const RadialRow& row) const {
    if (flat_)
        return mixFlat(pixels, end - begin, room, mixColors_);
    const bool near = unitsAcross(row, begin, end) <= kMostMixedUnitsInSinglePrecision;
    (near ? mixRadial : mixRadialFar)(pixels, end - begin, room, runFrom(begin, row), mixColors_);
}

RadialRun RadialPiece::runFrom(int begin, const RadialRow& row) const {
    return {(begin - row.lowest) * step_, row.height * step_ * step_, row.lean,
            (row.base - middle_) * toUnits_, step_};
}

} // namespace easel::paint
