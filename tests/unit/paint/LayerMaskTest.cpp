// Masks of luminance against the arithmetic of luminance in doubles.
#include "easel/paint/Layer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace easel::paint;
using easel::drawing::MaskMeasure;

// What is left of opaque white under a mask of this pixel.
double shown(std::uint32_t maskPixel, MaskMeasure measure) {
    Layer layer({.right = 1, .bottom = 1});
    layer.view().row(0)[0] = 0xFFFFFFFF;
    Layer mask({.right = 1, .bottom = 1});
    mask.view().row(0)[0] = maskPixel;
    layer.maskWith(mask, measure);
    const std::uint32_t pixel = layer.view().row(0)[0];
    EXPECT_EQ(pixel >> 24, pixel & 255);
    EXPECT_EQ(pixel >> 24, pixel >> 8 & 255);
    return pixel >> 24;
}

TEST(MaskMeasures, LuminanceWeighsTheColorsOfTheMask) {
    EXPECT_NEAR(shown(0xFFFF0000, MaskMeasure::Luminance), 255 * 0.2125, 0.51);
    EXPECT_NEAR(shown(0xFF00FF00, MaskMeasure::Luminance), 255 * 0.7154, 0.51);
    EXPECT_NEAR(shown(0xFF0000FF, MaskMeasure::Luminance), 255 * 0.0721, 0.51);
    EXPECT_EQ(shown(0xFFFFFFFF, MaskMeasure::Luminance), 255);
    EXPECT_EQ(shown(0xFF000000, MaskMeasure::Luminance), 0);
    // White of half opacity.
    EXPECT_EQ(shown(0x80808080, MaskMeasure::Luminance), 128);
}

TEST(MaskMeasures, LinearLuminanceWeighsLight) {
    for (const int level : {0, 5, 10, 64, 128, 200, 255}) {
        const double share = level / 255.0;
        const double light = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
        const auto gray = static_cast<std::uint32_t>(level) * 0x010101;
        EXPECT_NEAR(shown(0xFF000000 | gray, MaskMeasure::LinearLuminance), 255 * light, 0.51) << level;
    }
    // Red of half opacity: the light of red, and half of that.
    EXPECT_NEAR(shown(0x80800000, MaskMeasure::LinearLuminance), 128 * 0.2125, 0.51);
}

TEST(MaskMeasures, AlphaLooksAtNoColor) {
    EXPECT_EQ(shown(0xFF000000, MaskMeasure::Alpha), 255);
    EXPECT_EQ(shown(0x40000040, MaskMeasure::Alpha), 64);
}

} // namespace
