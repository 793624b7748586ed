// Pixels as the formulas of filters see them: channels from 0 to 1, not multiplied by alpha.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace easel::paint {

struct Shade {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 0;
};

inline std::uint32_t alphaLevel(std::uint32_t pixel) {
    return pixel >> 24;
}

inline Shade shadeOf(std::uint32_t pixel) {
    const std::uint32_t alpha = alphaLevel(pixel);
    if (alpha == 0)
        return {};
    const float whole = 1 / static_cast<float>(alpha);
    return {static_cast<float>(pixel >> 16 & 0xFF) * whole, static_cast<float>(pixel >> 8 & 0xFF) * whole,
            static_cast<float>(pixel & 0xFF) * whole, static_cast<float>(alpha) * (1.0F / 255)};
}

// 0 to 1; what is not a number counts as 0.
inline float unit(float value) {
    return value > 0 ? std::min(value, 1.0F) : 0;
}

// Of 0 to 1, for which cutting off costs less than rounding.
inline std::uint32_t levelOf(float value) {
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return static_cast<std::uint32_t>(value * 255 + 0.5F);
}

// Channels beyond their range are clamped.
inline std::uint32_t pixelOf(const Shade& shade) {
    const float alpha = unit(shade.alpha);
    return levelOf(alpha) << 24 | levelOf(unit(shade.red) * alpha) << 16 |
           levelOf(unit(shade.green) * alpha) << 8 | levelOf(unit(shade.blue) * alpha);
}

// The channels of a pixel, multiplied by alpha: blue, green, red, alpha, from 0 to 255.
inline std::array<float, 4> partsOf(std::uint32_t pixel) {
    return {static_cast<float>(pixel & 0xFF), static_cast<float>(pixel >> 8 & 0xFF),
            static_cast<float>(pixel >> 16 & 0xFF), static_cast<float>(pixel >> 24)};
}

// A pixel times part / 255, each channel rounded.
inline std::uint32_t shareOf(std::uint32_t pixel, std::uint32_t part) {
    const auto two = [part](std::uint32_t channels) {
        const std::uint32_t product = (channels & 0x00FF00FF) * part + 0x00800080;
        return (product + (product >> 8 & 0x00FF00FF)) >> 8 & 0x00FF00FF;
    };
    return two(pixel >> 8) << 8 | two(pixel);
}

// Rounds, and clamps each channel to 0 to 255 and colors to alpha.
inline std::uint32_t pixelOfParts(const std::array<float, 4>& parts) {
    const float alpha = unit(parts[3] * (1.0F / 255));
    const auto level = [alpha](float part) { return levelOf(std::min(unit(part * (1.0F / 255)), alpha)); };
    return levelOf(alpha) << 24 | level(parts[2]) << 16 | level(parts[1]) << 8 | level(parts[0]);
}

} // namespace easel::paint
