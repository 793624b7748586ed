// Colors in the forms of CSS, against values computed by hand or taken from their definitions.
#include "easel/svg/style/Color.h"
#include "tests/unit/svg/ExpectedColor.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using easel::drawing::ColorPaint;
using easel::drawing::Rgb16;
using easel::svg::colorText;
using easel::svg::parseColor;
using tests::expectBytes;

TEST(SvgColor, MixturesOfTwoColors) {
    expectBytes("color-mix(in srgb, red, blue)", 128, 0, 128);
    expectBytes("color-mix(in srgb, red 25%, blue)", 64, 0, 191);
    expectBytes("color-mix(in srgb, red, 25% rgb(0, 0, 255))", 191, 0, 64);
    expectBytes("color-mix(in srgb, red 20%, blue 20%)", 128, 0, 128, 0.4);
    // The opaque one counts twice as much as the other.
    expectBytes("color-mix(in srgb, red, rgb(0 0 255 / .5))", 170, 0, 85, 0.75);
    // Half of the light: 1.055 * 0.5 ^ (1 / 2.4) - 0.055.
    expectBytes("color-mix(in srgb-linear, red, lime)", 188, 188, 0);
    expectBytes("color-mix(in xyz, red, lime)", 188, 188, 0);
    // Half of the lightness is an eighth of the light.
    expectBytes("color-mix(in oklab, white, black)", 99, 99, 99);
    expectBytes("color-mix(in oklab, #4080c0 100%, black)", 64, 128, 192);
    for (const char* text :
         {"color-mix(in nowhere, red, blue)", "color-mix(in srgb, red)", "color-mix(red, blue)",
          "color-mix(in srgb, red 0%, blue 0%)", "color-mix(in srgb, red, blue, lime)",
          "color-mix(in srgb, red, blue", "color-mix(in srgb, red 120%, blue)"})
        EXPECT_FALSE(parseColor(text)) << text;
}

TEST(SvgColor, NamesAndHexadecimalForms) {
    expectBytes("rebeccapurple", 102, 51, 153);
    expectBytes(" LightGoldenRodYellow ", 250, 250, 210);
    expectBytes("#1af", 17, 170, 255);
    expectBytes("#1AF8", 17, 170, 255, 136 / 255.0);
    expectBytes("#0102fe", 1, 2, 254);
    expectBytes("#0102fe80", 1, 2, 254, 128 / 255.0);
    expectBytes("transparent", 0, 0, 0, 0);
}

TEST(SvgColor, FunctionsInOldAndNewSyntax) {
    expectBytes("rgb(255, 128, 0)", 255, 128, 0);
    expectBytes("rgba(100% 50% 0% / 25%)", 255, 128, 0, 0.25);
    expectBytes("hsl(120, 100%, 25%)", 0, 128, 0);
    expectBytes("hsl(0.5turn 100% 50% / .5)", 0, 255, 255, 0.5);
    expectBytes("hwb(240deg 20% 20%)", 51, 51, 204);
    expectBytes("rgb(300, -5, none)", 255, 0, 0);
}

TEST(SvgColor, WideColorSpacesMeetSrgbWhereTheyAgree) {
    expectBytes("lab(100% 0 0)", 255, 255, 255);
    expectBytes("lab(54.29 80.8 69.89)", 255, 0, 0);
    expectBytes("lch(54.29% 106.84 40.85)", 255, 0, 0);
    expectBytes("oklab(0.62796 0.22486 0.12585)", 255, 0, 0);
    expectBytes("oklch(0.62796 0.25768 29.234)", 255, 0, 0);
    expectBytes("color(srgb 1 .5 0)", 255, 128, 0);
    expectBytes("color(srgb-linear 1 0.21404 0)", 255, 128, 0);
    expectBytes("color(display-p3 1 1 1)", 255, 255, 255);
    expectBytes("color(xyz 0.4124 0.2126 0.0193)", 255, 0, 0);
    expectBytes("color(prophoto-rgb 1 1 1 / 0.5)", 255, 255, 255, 0.5);
}

TEST(SvgColor, WhatIsNoColorIsRefused) {
    for (const char* text :
         {"", "#12", "#ggg", "rgb(1,2)", "rgb(1,2,3", "hsl(a,b,c)", "color(foo 1 1 1)", "blurple"})
        EXPECT_FALSE(parseColor(text)) << text;
}

TEST(SvgColor, AnySixteenBitColorSurvivesBeingWrittenAndRead) {
    std::mt19937 random(5);
    const auto channel = [&random] { return static_cast<std::uint16_t>(random()); };
    for (int i = 0; i < 20000; ++i) {
        const Rgb16 color{channel(), channel(), channel()};
        ASSERT_EQ(parseColor(colorText(color)), (ColorPaint{color, 1}));
    }
    EXPECT_EQ(colorText({65535, 257, 0}), "#ff0100");
}

} // namespace
