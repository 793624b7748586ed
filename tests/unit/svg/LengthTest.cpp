// Lengths, by what the standards define their units as.
#include "easel/svg/text/Length.h"

#include <gtest/gtest.h>

#include <utility>

using namespace easel::svg;

namespace {

constexpr LengthContext kAround{300, 400, 20, 10};

TEST(Length, EachUnitIsAsLongAsTheStandardSays) {
    const std::pair<const char*, double> lengths[] = {
        {"7", 7},       {"7px", 7},     {"2em", 40},    {"2ex", 20},  {"2ch", 20}, {"2rem", 20}, {"1in", 96},
        {"2.54cm", 96}, {"25.4mm", 96}, {"101.6q", 96}, {"72pt", 96}, {"6pc", 96}, {"10vw", 30}, {"10vh", 40},
        {"10vmin", 30}, {"10vmax", 40}, {"-3PX", -3},   {" 4px ", 4}, {"1e1", 10}};
    for (const auto& [text, length] : lengths) {
        const auto read = parseLength(text, kAround, Axis::Other);
        ASSERT_TRUE(read) << text;
        EXPECT_NEAR(*read, length, 1e-9) << text;
    }
}

TEST(Length, APercentageIsOneOfTheSideItLiesAlong) {
    EXPECT_EQ(parseLength("50%", kAround, Axis::Horizontal), 150);
    EXPECT_EQ(parseLength("50%", kAround, Axis::Vertical), 200);
    // Of what lies along neither, the diagonal over the root of two: 500 / 1.414...
    EXPECT_NEAR(parseLength("100%", kAround, Axis::Other).value(), 353.5533905932738, 1e-9);
}

TEST(Length, WhatIsNoLengthIsNone) {
    for (const char* text : {"", "px", "wide", "3 4", "3parsecs", "50%%", "50%px"})
        EXPECT_FALSE(parseLength(text, kAround, Axis::Other)) << text;
}

TEST(Length, FractionsAreNumbersOrPercentages) {
    EXPECT_EQ(parseFraction("0.25"), 0.25);
    EXPECT_EQ(parseFraction(" 25% "), 0.25);
    for (const char* text : {"", "%", "half", "25%%", "1 2"})
        EXPECT_FALSE(parseFraction(text)) << text;
}

} // namespace
