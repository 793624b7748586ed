// Color spaces, by the values that the CSS color module's examples give for one green, and by their formulas
// near black.
#include "easel/svg/style/Color.h"
#include "tests/unit/svg/ExpectedColor.h"

#include <gtest/gtest.h>

namespace {

using easel::svg::parseColor;
using tests::expectBytes;

TEST(ColorSpaces, OneGreenIsTheSameInEach) {
    for (const char* green :
         {"color(srgb 0 0.50196 0)", "color(srgb-linear 0 0.21586 0)",
          "color(display-p3 0.21604 0.49418 0.13151)", "color(a98-rgb 0.281363 0.498012 0.116746)",
          "color(rec2020 0.235202 0.431704 0.085432)", "color(prophoto-rgb 0.230479 0.395789 0.129968)",
          "color(xyz 0.07719 0.15438 0.02573)", "color(xyz-d65 0.07719 0.15438 0.02573)",
          "color(xyz-d50 0.08312 0.154746 0.020961)", "lab(46.2775% -47.5621 48.5837)",
          "lch(46.2775% 67.9892 134.3912)", "oklab(51.975% -0.1403 0.10768)",
          "oklch(51.975% 0.17686 142.495)", "hsl(120 100% 25.1%)", "hwb(120 0% 49.8%)"})
        expectBytes(green, 0, 128, 0);
}

TEST(ColorSpaces, NearBlackTheirCurvesAreStraight) {
    expectBytes("color(srgb-linear 0.001 0.001 0.001)", 3, 3, 3); // 12.92 * 0.001 * 255
    expectBytes("color(display-p3 0.02 0.02 0.02)", 5, 5, 5);     // the curve of sRGB itself: 0.02 * 255
    expectBytes("color(prophoto-rgb 0.02 0.02 0.02)", 4, 4, 4);   // 12.92 * 0.02 / 16 * 255
    expectBytes("color(rec2020 0.05 0.05 0.05)", 27, 27,
                27);                        // (1.055 * (0.05 / 4.5) ^ (1 / 2.4) - 0.055) * 255
    expectBytes("lab(5% 0 0)", 17, 17, 17); // of a luminance of 5 / 903.3
}

TEST(ColorSpaces, HuesGoRoundAndHaveTheUnitsOfAngles) {
    expectBytes("hsl(-120 100% 50%)", 0, 0, 255);
    expectBytes("hsl(480 100% 50%)", 0, 255, 0);
    expectBytes("hsl(200grad 100% 50%)", 0, 255, 255);
    expectBytes("hsl(3.14159265rad 100% 50%)", 0, 255, 255);
    expectBytes("hsla(180deg 100% 50% / 50%)", 0, 255, 255, 0.5);
    expectBytes("oklch(0 0 none)", 0, 0, 0);
}

TEST(ColorSpaces, WhiteAndBlackThatAreMoreThanAllGiveTheirShares) {
    expectBytes("hwb(90 60% 60%)", 128, 128, 128);
    expectBytes("hwb(90 100% 0%)", 255, 255, 255);
    expectBytes("hwb(90 0% 100%)", 0, 0, 0);
}

TEST(ColorSpaces, OpacityIsCutToWhatThereIs) {
    expectBytes("rgb(1 2 3 / 2)", 1, 2, 3, 1);
    expectBytes("rgb(1 2 3 / -1)", 1, 2, 3, 0);
    expectBytes("rgb(1 2 3, 40%)", 1, 2, 3, 0.4);
}

TEST(ColorSpaces, MistakesInFunctionsMakeNoColor) {
    for (const char* text : {"rgb(1 2 3 / )", "rgb(1 2 3) x", "rgb(1 2 3 4)", "color(srgb 1 1)", "color()",
                             "color(nowhere 1 1 1)", "gray(1 2 3)", "#12345g", "#1234567", "red blue",
                             "color-mix(in srgb, red, blue) x"})
        EXPECT_FALSE(parseColor(text)) << text;
}

} // namespace
