// Blend modes, by the formulas of the W3C's Compositing and Blending Level 1; also feBlend (SVG 1.1, 15.9).
#include "easel/paint/filter/Blend.h"

#include "easel/paint/filter/PixelLoops.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace easel::paint {

namespace {

using drawing::BlendMode;

// Red, green and blue, each from 0 to 1.
using Rgb = std::array<double, 3>;

double multiply(double below, double above) {
    return below * above;
}
double screen(double below, double above) {
    return below + above - below * above;
}
double hardLight(double below, double above) {
    return above <= 0.5 ? multiply(below, 2 * above) : screen(below, 2 * above - 1);
}
double colorDodge(double below, double above) {
    if (below <= 0)
        return 0;
    return above >= 1 ? 1 : std::min(1.0, below / (1 - above));
}
double colorBurn(double below, double above) {
    if (below >= 1)
        return 1;
    return above <= 0 ? 0 : 1 - std::min(1.0, (1 - below) / above);
}
double softLight(double below, double above) {
    if (above <= 0.5)
        return below - (1 - 2 * above) * below * (1 - below);
    const double lighter = below <= 0.25 ? ((16 * below - 12) * below + 4) * below : std::sqrt(below);
    return below + (2 * above - 1) * (lighter - below);
}

// For the modes that compute each channel by itself.
double mixedChannel(BlendMode mode, double below, double above) {
    switch (mode) {
    case BlendMode::Multiply:
        return multiply(below, above);
    case BlendMode::Screen:
        return screen(below, above);
    case BlendMode::Overlay:
        return hardLight(above, below);
    case BlendMode::Darken:
        return std::min(below, above);
    case BlendMode::Lighten:
        return std::max(below, above);
    case BlendMode::ColorDodge:
        return colorDodge(below, above);
    case BlendMode::ColorBurn:
        return colorBurn(below, above);
    case BlendMode::HardLight:
        return hardLight(below, above);
    case BlendMode::SoftLight:
        return softLight(below, above);
    case BlendMode::Difference:
        return std::abs(below - above);
    case BlendMode::Exclusion:
        return below + above - 2 * below * above;
    default:
        return above;
    }
}

double luminosityOf(const Rgb& color) {
    return 0.3 * color[0] + 0.59 * color[1] + 0.11 * color[2];
}

double saturationOf(const Rgb& color) {
    const auto [lowest, highest] = std::minmax_element(color.begin(), color.end());
    return *highest - *lowest;
}

// Moved towards its luminosity until no channel is out of range.
Rgb clipped(Rgb color) {
    const double luminosity = luminosityOf(color);
    const double lowest = *std::min_element(color.begin(), color.end());
    const double highest = *std::max_element(color.begin(), color.end());
    for (double& channel : color) {
        if (lowest < 0)
            channel = luminosity + (channel - luminosity) * luminosity / (luminosity - lowest);
        if (highest > 1)
            channel = luminosity + (channel - luminosity) * (1 - luminosity) / (highest - luminosity);
    }
    return color;
}

Rgb withLuminosity(Rgb color, double luminosity) {
    const double change = luminosity - luminosityOf(color);
    for (double& channel : color)
        channel += change;
    return clipped(color);
}

Rgb withSaturation(Rgb color, double saturation) {
    const double lowest = *std::min_element(color.begin(), color.end());
    const double extent = saturationOf(color);
    for (double& channel : color)
        channel = extent > 0 ? (channel - lowest) * saturation / extent : 0;
    return color;
}

Rgb mixed(BlendMode mode, const Rgb& below, const Rgb& above) {
    switch (mode) {
    case BlendMode::Hue:
        return withLuminosity(withSaturation(above, saturationOf(below)), luminosityOf(below));
    case BlendMode::Saturation:
        return withLuminosity(withSaturation(below, saturationOf(above)), luminosityOf(below));
    case BlendMode::Color:
        return withLuminosity(above, luminosityOf(below));
    case BlendMode::Luminosity:
        return withLuminosity(below, luminosityOf(above));
    default:
        return {mixedChannel(mode, below[0], above[0]), mixedChannel(mode, below[1], above[1]),
                mixedChannel(mode, below[2], above[2])};
    }
}

constexpr int kShifts[] = {16, 8, 0}; // of red, green and blue

double channelOf(std::uint32_t pixel, int shift) {
    return (pixel >> shift & 0xFF) / 255.0;
}

std::uint32_t nearestLevel(double share) {
    return static_cast<std::uint32_t>(std::lrint(std::clamp(share, 0.0, 1.0) * 255));
}

// What a premultiplied pixel holds, its color as if it were opaque.
struct OpaqueColor {
    explicit OpaqueColor(std::uint32_t pixel) : alpha(channelOf(pixel, 24)) {
        for (std::size_t i = 0; i < channels.size(); ++i)
            channels[i] = alpha > 0 ? std::min(1.0, channelOf(pixel, kShifts[i]) / alpha) : 0;
    }
    double alpha;
    Rgb channels{};
};

} // namespace

// Where only one of both is, its own color; where both are, the mixed one.
std::uint32_t blendedPixel(std::uint32_t below, std::uint32_t above, double opacity, BlendMode mode) {
    const OpaqueColor backdrop(below);
    const OpaqueColor source(above);
    const double alpha = source.alpha * opacity;
    const Rgb both = mixed(mode, backdrop.channels, source.channels);
    std::uint32_t pixel = nearestLevel(alpha + backdrop.alpha * (1 - alpha)) << 24;
    for (std::size_t i = 0; i < both.size(); ++i)
        pixel |= nearestLevel(source.channels[i] * alpha * (1 - backdrop.alpha) +
                              backdrop.channels[i] * backdrop.alpha * (1 - alpha) +
                              both[i] * alpha * backdrop.alpha)
                 << kShifts[i];
    return pixel;
}

Surface blended(BlendMode mode, const Surface& above, const Surface& below) {
    return combined(above, below, [mode](std::uint32_t one, std::uint32_t other) {
        return one == 0 ? other : blendedPixel(other, one, 1, mode);
    });
}

} // namespace easel::paint
