// Layers under masks. How much of a pixel shows is kept in 65536ths of an 8-bit level, so that each channel
// is rounded once.
#include "easel/drawing/Luminance.h"
#include "easel/drawing/SrgbCurve.h"
#include "easel/paint/Layer.h"

#include <array>
#include <cmath>

namespace easel::paint {

namespace {

using drawing::MaskMeasure;

constexpr std::uint32_t kLevel = 65536; // one level of 255
constexpr std::uint64_t kWhole = std::uint64_t{255} * kLevel;

// The shares of red, green and blue in luminance; together one level.
constexpr auto kRed = static_cast<std::uint32_t>(drawing::kRedLuminance * kLevel);
constexpr auto kGreen = static_cast<std::uint32_t>(drawing::kGreenLuminance * kLevel);
constexpr std::uint32_t kBlue = kLevel - kRed - kGreen;

std::uint32_t channelOf(std::uint32_t pixel, int shift) {
    return pixel >> shift & 0xFF;
}

std::uint64_t luminanceOf(std::uint32_t pixel) {
    return channelOf(pixel, 16) * kRed + channelOf(pixel, 8) * kGreen + channelOf(pixel, 0) * kBlue;
}

// Light by the 8-bit level of a channel.
const std::array<double, 256>& lights() {
    static const std::array<double, 256> kLights = [] {
        std::array<double, 256> lights{};
        for (std::size_t level = 0; level < lights.size(); ++level)
            lights[level] = drawing::linearLightOf(static_cast<double>(level) / 255);
        return lights;
    }();
    return kLights;
}

// Opaque pixels, whose levels are whole, take their light from the table.
std::uint64_t linearLuminanceOf(std::uint32_t pixel) {
    const std::uint32_t alpha = channelOf(pixel, 24);
    if (alpha == 0)
        return 0;
    const auto light = [&](int shift) {
        const std::uint32_t level = channelOf(pixel, shift);
        return alpha == 255 ? lights()[level]
                            : drawing::linearLightOf(std::min(1.0, static_cast<double>(level) / alpha));
    };
    const double sum = light(16) * kRed + light(8) * kGreen + light(0) * kBlue;
    return static_cast<std::uint64_t>(std::llround(sum * alpha));
}

std::uint32_t weakened(std::uint32_t pixel, std::uint64_t share) {
    std::uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8)
        result |= static_cast<std::uint32_t>((channelOf(pixel, shift) * share + kWhole / 2) / kWhole)
                  << shift;
    return result;
}

} // namespace

void Layer::maskWith(const Layer& mask, MaskMeasure measure) {
    if (measure == MaskMeasure::Alpha)
        return maskWith(mask);
    const auto shareOf = measure == MaskMeasure::Luminance ? luminanceOf : linearLuminanceOf;
    for (int y = 0; y < pixels_.height(); ++y) {
        std::uint32_t* const row = pixels_.row(y);
        const std::uint32_t* const measured = mask.pixels_.row(y);
        for (int x = 0; x < pixels_.width(); ++x)
            if (row[x] != 0)
                row[x] = weakened(row[x], shareOf(measured[x]));
    }
}

} // namespace easel::paint
