// The geometry and the ramp that objects on the canvas are drawn with.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using nlohmann::json;

json fitOf(const std::string& shape, const std::string& gradient) {
    const auto played =
        tests::playWithTool("add " + shape + "\ngradient x " + gradient + "\nprint fit x\nprint object x\n");
    return played.answers.empty() ? json() : played.answers[0];
}

TEST(GradientFit, ExtendsTheRampFlatToBothEndsAndLeavesTheRecordAlone) {
    const auto played = tests::playWithTool(R"(
add rect x 0 0 100 50
gradient x 1 0 0 0 1 1 0.2:65535,0,0 0.7:0,0,65535
print fit x
print object x
)");
    EXPECT_EQ(played["stops"],
              json({{0.0, 65535, 0, 0}, {0.2, 65535, 0, 0}, {0.7, 0, 0, 65535}, {1.0, 0, 0, 65535}}));
    EXPECT_EQ(played["gradient"]["stops"], json({{0.2, 65535, 0, 0}, {0.7, 0, 0, 65535}}));
}

TEST(GradientFit, AddsNoStopToARampThatIsComplete) {
    const json fit = fitOf("rect x 0 0 100 50", "1 0 0 0 1 1 0:1,2,3 1:4,5,6");
    EXPECT_EQ(fit["stops"], json({{0.0, 1, 2, 3}, {1.0, 4, 5, 6}}));
}

TEST(GradientFit, CopiesASingleStopToBothEnds) {
    const json fit = fitOf("rect x 0 0 100 50", "1 0 0 0 1 1 0.5:1,2,3");
    EXPECT_EQ(fit["stops"], json({{0.0, 1, 2, 3}, {0.5, 1, 2, 3}, {1.0, 1, 2, 3}}));
}

TEST(GradientFit, KeepsStopsBeyondTheEnds) {
    const json fit = fitOf("rect x 0 0 100 50", "1 0 0 0 1 1 -0.25:1,2,3 1.5:4,5,6");
    EXPECT_EQ(fit["stops"], json({{-0.25, 1, 2, 3}, {1.5, 4, 5, 6}}));
}

TEST(GradientFit, RunsALinearOneFromTheLeftEdgeToTheRightAtMidHeight) {
    const json fit = fitOf("rect x 10 20 100 50", "1 0 0.1 0.2 0.3 0.4 0:0,0,0 1:65535,65535,65535");
    EXPECT_EQ(fit["start"], json({10.0, 45.0}));
    EXPECT_EQ(fit["end"], json({110.0, 45.0}));
}

TEST(GradientFit, EndsOnThePerpendicularsThroughTheExtremeCorners) {
    // A square on its corner: at 45 degrees its sides are the perpendiculars.
    const json fit =
        fitOf("polygon x 100 50 150 100 100 150 50 100", "1 45 0 0 1 1 0:0,0,0 1:65535,65535,65535");
    const double h = fit["end"][0].get<double>() - fit["start"][0].get<double>();
    const double v = fit["end"][1].get<double>() - fit["start"][1].get<double>();
    EXPECT_NEAR(std::hypot(h, v), 50 * std::sqrt(2.0), 1e-9);
    EXPECT_NEAR(std::abs(h), 50, 1e-9);
    EXPECT_NEAR(std::abs(v), 50, 1e-9);
}

TEST(GradientFit, ReachesTheFarthestCornerFromTheCentre) {
    const json fit = fitOf("rect x 0 0 100 50", "2 0 0.5 0.5 0.5 0.5 0:0,0,0 1:65535,65535,65535");
    EXPECT_EQ(fit["start"], json({50.0, 25.0}));
    EXPECT_EQ(fit["end"], json({50.0, 25.0}));
    EXPECT_EQ(fit["startRadius"], 0.0);
    EXPECT_EQ(fit["endRadius"], static_cast<double>(static_cast<float>(std::sqrt(3125.0))));
}

TEST(GradientFit, ReachesTheFarthestCornerFromTheStoredEndWhateverTheStart) {
    const json fit = fitOf("rect x 0 0 100 50", "2 0 0.75 0.5 0 0 0:0,0,0 1:65535,65535,65535");
    EXPECT_EQ(fit["start"], json({75.0, 25.0}));
    EXPECT_EQ(fit["end"], json({0.0, 0.0}));
    EXPECT_EQ(fit["startRadius"], 0.0);
    EXPECT_EQ(fit["endRadius"], static_cast<double>(static_cast<float>(std::sqrt(12500.0))));
}

TEST(GradientFit, TreatsEveryKindButLinearAsRadial) {
    const std::string rest = " 0 0.5 0.5 0.5 0.5 0:0,0,0 1:65535,65535,65535";
    json radial = fitOf("rect x 0 0 100 50", "2" + rest);
    EXPECT_EQ(fitOf("rect x 0 0 100 50", "0" + rest), radial);
    EXPECT_EQ(fitOf("rect x 0 0 100 50", "-5" + rest), radial);
}

} // namespace
