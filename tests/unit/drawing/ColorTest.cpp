// Opacities, the transfer function of sRGB, and luminance.
#include "easel/drawing/Color.h"
#include "easel/drawing/Luminance.h"
#include "easel/drawing/SrgbCurve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace easel::drawing;

TEST(Color, AnOpacityLiesBetweenZeroAndOne) {
    EXPECT_EQ(validOpacity(0.25), 0.25);
    EXPECT_EQ(validOpacity(0), 0);
    EXPECT_EQ(validOpacity(1), 1);
    EXPECT_EQ(validOpacity(-0.25), 0);
    EXPECT_EQ(validOpacity(1.5), 1);
    EXPECT_EQ(validOpacity(std::nan("")), 1) << "as if there were none";
}

// Values from the table of the standard's curve: 8-bit levels and the light they stand for.
TEST(Color, TheTransferFunctionIsThatOfTheStandard) {
    EXPECT_EQ(linearLightOf(0), 0);
    EXPECT_DOUBLE_EQ(linearLightOf(1), 1);
    EXPECT_NEAR(linearLightOf(128 / 255.0), 0.215861, 1e-6);
    EXPECT_NEAR(linearLightOf(188 / 255.0), 0.502886, 1e-6);
    EXPECT_NEAR(linearLightOf(0.02), 0.02 / 12.92, 1e-12) << "straight near black";
    EXPECT_NEAR(linearLightOf(0.0404), 0.0404 / 12.92, 1e-12);
    EXPECT_NEAR(linearLightOf(0.05), 0.003936, 1e-6);
    EXPECT_EQ(linearLightOf(-0.5), -linearLightOf(0.5));
}

TEST(Color, BothWaysOfTheTransferFunctionAreInverse) {
    for (int i = -300; i <= 300; ++i)
        EXPECT_NEAR(srgbOf(linearLightOf(i / 255.0)), i / 255.0, 1e-5) << i;
    EXPECT_NEAR(srgbOf(0.003), 12.92 * 0.003, 1e-12);
    EXPECT_NEAR(srgbOf(0.5), 0.735357, 1e-6);
    EXPECT_DOUBLE_EQ(srgbOf(1), 1);
}

TEST(Color, LuminanceWeighsTheChannels) {
    EXPECT_DOUBLE_EQ(luminanceOf(1, 1, 1), 1);
    EXPECT_EQ(luminanceOf(1, 0, 0), 0.2125);
    EXPECT_EQ(luminanceOf(0, 1, 0), 0.7154);
    EXPECT_EQ(luminanceOf(0, 0, 1), 0.0721);
    EXPECT_DOUBLE_EQ(luminanceOf(0.5, 0.25, 0.75), 0.2125 / 2 + 0.7154 / 4 + 0.0721 * 3 / 4);
}

} // namespace
