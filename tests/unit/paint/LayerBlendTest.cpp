// Blend modes: colors worked out by hand from the formulas of the compositing standard, and what holds for
// every color.
#include "easel/paint/Layer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace {

using namespace easel::paint;
using easel::drawing::BlendMode;
using Rgb = std::array<int, 3>;

std::uint32_t opaque(const Rgb& color) {
    std::uint32_t pixel = 255;
    for (const int channel : color)
        pixel = pixel << 8 | static_cast<std::uint32_t>(channel);
    return pixel;
}

Rgb colorOf(std::uint32_t pixel) {
    return {static_cast<int>(pixel >> 16 & 255), static_cast<int>(pixel >> 8 & 255),
            static_cast<int>(pixel & 255)};
}

std::uint32_t blend(BlendMode mode, std::uint32_t below, std::uint32_t above, double opacity = 1) {
    Surface surface(1, 1);
    surface.clear(below);
    Layer layer({.right = 1, .bottom = 1});
    layer.view().row(0)[0] = above;
    layer.blendWith(surface.view(), opacity, mode);
    return surface.row(0)[0];
}

// 0.2, 0.4 and 0.8 below 0.6, 0.4 and 0.2.
Rgb blendOfKnownColors(BlendMode mode) {
    return colorOf(blend(mode, opaque({51, 102, 204}), opaque({153, 102, 51})));
}

Rgb levels(double red, double green, double blue) {
    const auto level = [](double share) { return static_cast<int>(std::lround(share * 255)); };
    return {level(red), level(green), level(blue)};
}

TEST(Blending, MixesEachChannelByTheFormulaOfItsMode) {
    EXPECT_EQ(blendOfKnownColors(BlendMode::Multiply), levels(0.12, 0.16, 0.16));
    EXPECT_EQ(blendOfKnownColors(BlendMode::Screen), levels(0.68, 0.64, 0.84));
    // Twice the product in the dark half of what is below, else the screened remainder.
    EXPECT_EQ(blendOfKnownColors(BlendMode::Overlay), levels(0.24, 0.32, 0.68));
    EXPECT_EQ(blendOfKnownColors(BlendMode::HardLight), levels(0.36, 0.32, 0.32));
    EXPECT_EQ(blendOfKnownColors(BlendMode::Darken), levels(0.2, 0.4, 0.2));
    EXPECT_EQ(blendOfKnownColors(BlendMode::Lighten), levels(0.6, 0.4, 0.8));
    EXPECT_EQ(blendOfKnownColors(BlendMode::ColorDodge), levels(0.5, 0.4 / 0.6, 1));
    EXPECT_EQ(blendOfKnownColors(BlendMode::ColorBurn), levels(0, 0, 0));
    EXPECT_EQ(blendOfKnownColors(BlendMode::Difference), levels(0.4, 0, 0.6));
    EXPECT_EQ(blendOfKnownColors(BlendMode::Exclusion), levels(0.56, 0.48, 0.68));
    // 0.2 is in the range of the cubic: ((16 * 0.2 - 12) * 0.2 + 4) * 0.2 = 0.448, a fifth of the way there.
    EXPECT_EQ(blendOfKnownColors(BlendMode::SoftLight),
              levels(0.2 + 0.2 * (0.448 - 0.2), 0.4 - 0.2 * 0.4 * 0.6, 0.8 - 0.6 * 0.8 * 0.2));
    EXPECT_EQ(colorOf(blend(BlendMode::SoftLight, opaque({102, 102, 102}), opaque({204, 255, 128})))[1],
              std::lround(std::sqrt(0.4) * 255));
    EXPECT_EQ(colorOf(blend(BlendMode::ColorBurn, opaque({204, 255, 204}), opaque({128, 0, 0}))),
              levels(1 - 0.2 / (128.0 / 255), 1, 0));
    EXPECT_EQ(colorOf(blend(BlendMode::ColorDodge, opaque({0, 51, 102}), opaque({255, 255, 51}))),
              levels(0, 1, 0.5));
}

// The luminosity of 0.2, 0.4, 0.8 is 0.384 and its saturation 0.6; of 0.6, 0.4, 0.2 they are 0.438 and 0.4.
TEST(Blending, MixesHueSaturationAndLuminosity) {
    // The hue of one in the saturation of the other is 0.6, 0.3, 0, of luminosity 0.357.
    EXPECT_EQ(blendOfKnownColors(BlendMode::Hue), levels(0.627, 0.327, 0.027));
    // 0, 0.4 / 3, 0.4, of luminosity 0.59 * 0.4 / 3 + 0.11 * 0.4.
    const double change = 0.384 - 0.59 * 0.4 / 3 - 0.11 * 0.4;
    EXPECT_EQ(blendOfKnownColors(BlendMode::Saturation), levels(change, change + 0.4 / 3, change + 0.4));
    EXPECT_EQ(blendOfKnownColors(BlendMode::Color), levels(0.546, 0.346, 0.146));
    EXPECT_EQ(blendOfKnownColors(BlendMode::Luminosity), levels(0.254, 0.454, 0.854));
    // Full blue is dark: lifted to the luminosity of white it is out of range, and becomes white.
    EXPECT_EQ(colorOf(blend(BlendMode::Color, 0xFFFFFFFF, 0xFF0000FF)), (Rgb{255, 255, 255}));
}

TEST(Blending, ModesOfWholeColorsKeepTheLuminosityTheyTake) {
    const auto luminosity = [](const Rgb& color) {
        return 0.3 * color[0] + 0.59 * color[1] + 0.11 * color[2];
    };
    std::mt19937 random(6);
    for (int i = 0; i < 2000; ++i) {
        const auto any = [&] { return opaque(colorOf(static_cast<std::uint32_t>(random()))); };
        const std::uint32_t below = any();
        const std::uint32_t above = any();
        for (const BlendMode mode : {BlendMode::Hue, BlendMode::Saturation, BlendMode::Color})
            ASSERT_NEAR(luminosity(colorOf(blend(mode, below, above))), luminosity(colorOf(below)), 0.51);
        ASSERT_NEAR(luminosity(colorOf(blend(BlendMode::Luminosity, below, above))),
                    luminosity(colorOf(above)), 0.51);
    }
}

TEST(Blending, WhereOnlyOneOfBothIsItsOwnColorStays) {
    for (std::size_t i = 0; i < easel::drawing::kBlendModeCount; ++i) {
        const auto mode = static_cast<BlendMode>(i);
        EXPECT_EQ(blend(mode, 0, 0x80402010), 0x80402010U);
        EXPECT_EQ(blend(mode, 0x80402010, 0), 0x80402010U);
        EXPECT_EQ(blend(mode, 0x80402010, 0xFF123456, 0), 0x80402010U);
    }
}

// Black of 0.4 under white of 0.6 at half opacity: 0.3 of white, mixed with black in 0.4 of its area, where
// multiplying leaves black.
TEST(Blending, TransparentColorsMixWhereBothAre) {
    const std::uint32_t pixel = blend(BlendMode::Multiply, 0x66000000, 0x99999999, 0.5);
    EXPECT_EQ(pixel >> 24, static_cast<std::uint32_t>(std::lround(255 * (0.4 + 0.3 - 0.12))));
    EXPECT_EQ(colorOf(pixel), levels(0.18, 0.18, 0.18));
}

TEST(Blending, OfNormalModeIsComposition) {
    std::mt19937 random(3);
    const auto any = [&] {
        const auto alpha = static_cast<std::uint32_t>(random() % 256);
        std::uint32_t pixel = alpha;
        for (int i = 0; i < 3; ++i)
            pixel = pixel << 8 | static_cast<std::uint32_t>(random() % (alpha + 1));
        return pixel;
    };
    for (int i = 0; i < 2000; ++i) {
        const std::uint32_t below = any();
        const std::uint32_t above = any();
        const std::uint32_t result = blend(BlendMode::Normal, below, above, 0.7);
        for (const int shift : {0, 8, 16, 24}) {
            const double exact =
                0.7 * (above >> shift & 255) + (below >> shift & 255) * (1 - 0.7 * (above >> 24) / 255.0);
            ASSERT_NEAR(result >> shift & 255, exact, 0.51);
        }
    }
}

} // namespace
