// GIMP's gradient files.
#include "easel/exchange/Ggr.h"
#include "easel/drawing/Ramp.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::exchange;
using testing::HasSubstr;

namespace {

std::string file(const std::string& segments, int count = 1) {
    return "GIMP Gradient\nName: Test\n" + std::to_string(count) + "\n" + segments;
}

ImportedGradient imported(const std::string& text) {
    const auto outcome = readGgr(text, "test.ggr");
    if (!outcome) {
        ADD_FAILURE() << outcome.error().reason;
        return {};
    }
    return outcome.value();
}

std::string refusal(const std::string& text) {
    const auto outcome = readGgr(text, "test.ggr");
    if (outcome)
        return "accepted";
    EXPECT_EQ(outcome.error().file, "test.ggr");
    return outcome.error().reason;
}

// The red channel of the ramp in 8-bit levels, as it is painted.
double redAt(const CGradientData& gradient, double position) {
    std::vector<easel::drawing::RampStop> stops;
    for (const auto& stop : gradient.ColorList()) {
        const auto color = stop.ColorRGB();
        stops.push_back({stop.Percent(), {color.red, color.green, color.blue}});
    }
    return easel::drawing::Ramp(stops).at(position).red;
}

const std::string kBlackToWhite = " 0 0 0 1 1 1 1 1 ";

TEST(Ggr, APlainSegmentIsTwoStops) {
    const auto result = imported(file("0 0.5 1" + kBlackToWhite + "0 0\n"));
    EXPECT_EQ(result.name, "Test");
    EXPECT_EQ(result.gradient.ColorList().size(), 2U);
    EXPECT_TRUE(result.notes.empty());
    EXPECT_EQ(result.gradient.Type(), kLinearGradient);
}

TEST(Ggr, AMidpointIsAThirdStopHalfWayInColor) {
    const auto result = imported(file("0 0.25 1" + kBlackToWhite + "0 0 0 0\n"));
    ASSERT_EQ(result.gradient.ColorList().size(), 3U);
    const auto middle = *std::next(result.gradient.ColorList().begin());
    EXPECT_EQ(middle.Percent(), 0.25);
    EXPECT_EQ(middle.ColorRGB().red, 32768);
}

// Where the middle has no way before it, the first half of the blend takes no room; likewise the second.
TEST(Ggr, AMidpointOnAnEndLeavesOneHalfOfTheBlend) {
    const auto left = imported(file("0 0 1" + kBlackToWhite + "0 0\n")).gradient;
    const auto right = imported(file("0 1 1" + kBlackToWhite + "0 0\n")).gradient;
    for (const double t : {0.01, 0.25, 0.5, 0.75, 0.99}) {
        EXPECT_NEAR(redAt(left, t), 255 * (0.5 + t / 2), 0.01);
        EXPECT_NEAR(redAt(right, t), 255 * t / 2, 0.01);
    }
    const auto pair =
        imported(file("0 0.5 0.5" + kBlackToWhite + "0 0\n0.5 0.5 1" + kBlackToWhite + "0 0\n", 2));
    EXPECT_NEAR(redAt(pair.gradient, 0.4999), 255 * 0.5, 0.1);
    EXPECT_NEAR(redAt(pair.gradient, 0.5001), 255 * 0.5, 0.1);
}

TEST(Ggr, ASegmentThatBeginsInAnotherColorIsAHardStop) {
    const auto result = imported(file("0 0.25 0.5 1 0 0 1 1 0 0 1 0 0\n0.5 0.75 1 0 0 1 1 0 0 1 1 0 0\n", 2));
    std::vector<double> positions;
    for (const auto& stop : result.gradient.ColorList())
        positions.push_back(stop.Percent());
    EXPECT_THAT(positions, testing::ElementsAre(0, 0.5, 0.5, 1));
}

// Each blending by its own definition, not by the code under test.
TEST(Ggr, CurvesStayWithinOneLevelOfTheirDefinition) {
    struct Curve {
        const char* code;
        double (*at)(double);
    };
    const Curve curves[] = {
        {"1", [](double t) { return std::pow(t, std::log(0.5) / std::log(0.3)); }},
        {"2",
         [](double t) { return 0.5 - 0.5 * std::cos(M_PI * (t < 0.3 ? t / 0.6 : 0.5 + (t - 0.3) / 1.4)); }},
        {"3",
         [](double t) {
             const double s = 1 - (t < 0.3 ? t / 0.6 : 0.5 + (t - 0.3) / 1.4);
             return std::sqrt(1 - s * s);
         }},
        {"4",
         [](double t) {
             const double s = t < 0.3 ? t / 0.6 : 0.5 + (t - 0.3) / 1.4;
             return 1 - std::sqrt(1 - s * s);
         }},
    };
    for (const auto& curve : curves) {
        const auto result = imported(file("0 0.3 1" + kBlackToWhite + curve.code + " 0\n"));
        double worst = 0;
        for (int i = 0; i <= 20'000; ++i) {
            const double t = i / 20'000.0;
            worst = std::max(worst, std::abs(redAt(result.gradient, t) - 255 * curve.at(t)));
        }
        EXPECT_LT(worst, 1) << curve.code;
        EXPECT_LT(result.gradient.ColorList().size(), 200U) << curve.code;
        EXPECT_THAT(result.notes, testing::ElementsAre(HasSubstr("blending curves")));
    }
}

TEST(Ggr, AStepIsAHardStopAtItsMiddle) {
    const auto stops = imported(file("0 0.3 1" + kBlackToWhite + "5 0\n")).gradient.ColorList();
    std::vector<double> positions;
    for (const auto& stop : stops)
        positions.push_back(stop.Percent());
    EXPECT_THAT(positions, testing::ElementsAre(0, 0.3, 0.3, 1));
}

TEST(Ggr, HuesSweepTheWayTheSegmentSays) {
    // Red to blue: upwards by way of green, downwards by way of magenta.
    const auto middleOf = [](const char* coloring) {
        const auto result = imported(file(std::string("0 0.5 1 1 0 0 1 0 0 1 1 0 ") + coloring + "\n"));
        double best = 1;
        RGBColor color;
        for (const auto& stop : result.gradient.ColorList())
            if (std::abs(stop.Percent() - 0.5) < best) {
                best = std::abs(stop.Percent() - 0.5);
                color = stop.ColorRGB();
            }
        return color;
    };
    EXPECT_EQ(middleOf("1"), (RGBColor{0, 65535, 0}));
    EXPECT_EQ(middleOf("2"), (RGBColor{65535, 0, 65535}));
}

TEST(Ggr, WhatCannotBeHeldIsSaid) {
    EXPECT_THAT(imported(file("0 0.5 1 0 0 0 0.5 1 1 1 1 0 0\n")).notes,
                testing::ElementsAre(HasSubstr("opacity")));
    EXPECT_THAT(imported(file("0 0.5 1" + kBlackToWhite + "0 0 1 3\n")).notes,
                testing::ElementsAre(HasSubstr("foreground")));
}

TEST(Ggr, DamageIsNamedWithItsLine) {
    EXPECT_EQ(refusal(""), "it is no GIMP gradient");
    EXPECT_THAT(refusal("GIMP Gradient\n0\n"), HasSubstr("line 2"));
    EXPECT_THAT(refusal(file("", 1)), HasSubstr("line 4"));
    EXPECT_THAT(refusal(file("0 0.5 1" + kBlackToWhite + "0 9\n")), HasSubstr("line 4"));
    EXPECT_THAT(refusal(file("0 2 1" + kBlackToWhite + "0 0\n")), HasSubstr("line 4"));
    EXPECT_THAT(refusal(file("0 nan 1" + kBlackToWhite + "0 0\n")), HasSubstr("line 4"));
    EXPECT_THAT(refusal(file("0 0.2 0.4" + kBlackToWhite + "0 0\n0.6 0.8 1" + kBlackToWhite + "0 0\n", 2)),
                HasSubstr("line 5"));
    EXPECT_THAT(refusal("GIMP Gradient\n99999999999\n"), HasSubstr("line 2"));
}

TEST(Ggr, EachNumberOfASegmentHasItsBounds) {
    for (const std::string segment :
         {"0 0.5 1 0 0 0 1 1 1 1 0 0", "0 0.5 1 0 0 -0.1 1 1 1 1 1 0 0", "0 0.5 1 0 0 0 1 1 1.1 1 1 0 0",
          "0 0.5 1 0 0 0 1 1 1 1 1 0", "0 0.5 1 0 0 0 1 1 1 1 1 0.5 0", "0 0.5 1 0 0 0 1 1 1 1 1 -1 0",
          "0 0.5 1 0 0 0 1 1 1 1 1 0 0 5", "0 0.5 1 0 0 0 1 1 1 1 1 0 0 0 x",
          "0 0.5 1 0 0 0 1 1 1 1 1 0 0 0 0 0", "0.5 0.2 1 0 0 0 1 1 1 1 1 0 0",
          "-0.5 0.2 1 0 0 0 1 1 1 1 1 0 0", "0 0.2 1.5 0 0 0 1 1 1 1 1 0 0"})
        EXPECT_THAT(refusal(file(segment + "\n")), HasSubstr("line 4")) << segment;
    for (const char* count : {"0", "10001", "-1", "1.5", "1 1", "one"})
        EXPECT_THAT(refusal("GIMP Gradient\nName: n\n" + std::string(count) + "\n"), HasSubstr("line 3"))
            << count;
}

TEST(Ggr, LinesMayEndAsOnOtherSystemsAndTheLastMayBeCutOff) {
    const auto result = imported("GIMP Gradient\r\nName: A b \r\n1\r\n0 0.5 1" + kBlackToWhite + "0 0");
    EXPECT_EQ(result.name, "A b");
    EXPECT_EQ(result.gradient.ColorList().size(), 2U);
    EXPECT_EQ(imported("GIMP Gradient\n1\n0 0.5 1" + kBlackToWhite + "0 0\n").name, "");
}

TEST(Ggr, SegmentsThatMissEachOtherByARoundingMeet) {
    // The second begins, and has its middle and its end, a little before the first one ends.
    const auto result = imported(file("0 0.25 0.5" + kBlackToWhite + "0 0\n0.499995 0.499996 0.499997" +
                                          kBlackToWhite + "0 0\n0.5 0.75 1" + kBlackToWhite + "0 0\n",
                                      3));
    double before = 0;
    for (const auto& stop : result.gradient.ColorList()) {
        EXPECT_GE(stop.Percent(), before);
        before = stop.Percent();
    }
    EXPECT_EQ(before, 1);
    EXPECT_TRUE(result.notes.empty());
}

TEST(Ggr, GrayHasTheHueOfRed) {
    // From a gray to red, once round the circle of hues: cyan half way, half saturated and of three quarters'
    // value.
    const auto result = imported(file("0 0.5 1 0.5 0.5 0.5 1 1 0 0 1 0 1\n"));
    EXPECT_NEAR(redAt(result.gradient, 0.5), 0.375 * 255, 1);
    EXPECT_NEAR(redAt(result.gradient, 1), 255, 1);
}

TEST(Ggr, WhatIsWrittenReadsBackAsTheSameStops) {
    CGradientData gradient;
    auto& stops = gradient.ColorList();
    stops = {{{1, 2, 3}, 0}, {{65535, 0, 7}, 0.3}, {{0, 9, 0}, 0.3}, {{400, 500, 600}, 1}};
    const auto back = imported(writeGgr(gradient, "a\nb").text);
    EXPECT_EQ(back.name, "a b");
    ASSERT_EQ(back.gradient.ColorList().size(), 4U);
    auto j = back.gradient.ColorList().begin();
    for (auto i = stops.begin(); i != stops.end(); ++i, ++j) {
        EXPECT_EQ(i->ColorRGB(), j->ColorRGB());
        EXPECT_NEAR(i->Percent(), j->Percent(), 1e-9);
    }
}

TEST(Ggr, StopsBeyondTheEndsAreCutAtTheColorTheRampHasThere) {
    CGradientData gradient;
    gradient.ColorList() = {{{0, 0, 0}, -0.5}, {{65535, 65535, 65535}, 1.5}};
    const auto written = writeGgr(gradient, "x");
    const auto back = imported(written.text);
    EXPECT_NEAR(redAt(back.gradient, 0), 255 * 0.25, 0.01);
    EXPECT_NEAR(redAt(back.gradient, 1), 255 * 0.75, 0.01);
    EXPECT_THAT(written.notes, testing::Contains(HasSubstr("cut off")));
}

TEST(Ggr, AShortRampIsExtendedToTheEnds) {
    CGradientData gradient;
    gradient.ColorList() = {{{65535, 0, 0}, 0.4}};
    const auto back = imported(writeGgr(gradient, "x").text);
    EXPECT_EQ(back.gradient.ColorList().front().Percent(), 0);
    EXPECT_EQ(back.gradient.ColorList().back().Percent(), 1);
    EXPECT_NEAR(redAt(back.gradient, 0.9), 255, 0.01);
}

} // namespace
