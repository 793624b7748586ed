// Gradients that repeat far too often.
#include "easel/export/GradientRepeats.h"
#include "easel/export/ExportDrawing.h"
#include "easel/svg/Document.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace easel::drawing;
using easel::exports::meanOfRepeats;

const Box kPage{0, 0, 100, 50};

Gradient repeatedEvery(double length, Spread spread = Spread::Repeat) {
    return {LinearGeometry{{3, 0}, {3 + length, 0}},
            {},
            spread,
            Ramp({{0, {65535, 0, 0}, 1}, {1, {0, 0, 65535}, 0.5}})};
}

TEST(GradientRepeats, OnlyThoseThatNobodyCouldSeeBecomeOneColor) {
    EXPECT_FALSE(meanOfRepeats(repeatedEvery(100 / 19'999.0), kPage));
    EXPECT_TRUE(meanOfRepeats(repeatedEvery(100 / 20'001.0), kPage));
    EXPECT_FALSE(meanOfRepeats(repeatedEvery(1e-6, Spread::Pad), kPage));
    const RadialGeometry circles{{50, 25}, 0.2, {50, 25}, 0.2 + std::hypot(100, 50) / 2 / 19'000};
    EXPECT_FALSE(meanOfRepeats({circles, {}, Spread::Reflect, Ramp()}, kPage));
    EXPECT_TRUE(meanOfRepeats({circles, Affine::scaling(0.9, 0.9), Spread::Reflect, Ramp()}, kPage));
}

// With t from 0 to 1, red is the integral of (1 - t)(1 - t / 2), 5 / 12, blue that of t (1 - t / 2), 4 / 12,
// and both are to be divided by the mean opacity, 9 / 12.
TEST(GradientRepeats, TheColorIsTheMeanOfWhatShows) {
    const auto mean = meanOfRepeats(repeatedEvery(1e-6), kPage);
    ASSERT_TRUE(mean);
    EXPECT_NEAR(mean->color.red, 65535 * 5 / 9.0, 1);
    EXPECT_EQ(mean->color.green, 0);
    EXPECT_NEAR(mean->color.blue, 65535 * 4 / 9.0, 1);
    EXPECT_NEAR(mean->opacity, 0.75, 1e-12);
}

TEST(GradientRepeats, FlatEndsAndNothingAtAllCountAsWell) {
    Gradient ends = repeatedEvery(1e-6);
    ends.ramp = Ramp({{0.25, {65535, 0, 0}, 1}, {0.25, {0, 0, 65535}, 1}});
    const auto mean = meanOfRepeats(ends, kPage);
    ASSERT_TRUE(mean);
    EXPECT_NEAR(mean->color.red, 65535 / 4.0, 1);
    EXPECT_NEAR(mean->color.blue, 65535 * 3 / 4.0, 1);
    ends.ramp = Ramp({{0, {65535, 0, 0}, 0}});
    EXPECT_EQ(meanOfRepeats(ends, kPage)->opacity, 0);
}

TEST(GradientRepeats, APageWithThemStaysSmall) {
    const auto drawing = easel::svg::readBytes(
        "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='50'><linearGradient id='g' x2='1e-6' "
        "spreadMethod='repeat'><stop stop-color='red'/><stop offset='1' stop-color='blue'/></linearGradient>"
        "<rect width='90' height='40' fill='url(#g)'/></svg>",
        "repeats.svg");
    ASSERT_TRUE(drawing);
    const tests::TemporaryFolder folder;
    ASSERT_TRUE(easel::exports::exportDrawing(*drawing, folder / "a.pdf", {}, {}));
    EXPECT_LT(std::filesystem::file_size(folder / "a.pdf"), 20'000U);
}

} // namespace
