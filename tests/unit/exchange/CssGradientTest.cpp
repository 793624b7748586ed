// Gradients in the language of style sheets.
#include "easel/exchange/CssGradient.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace easel::exchange;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

ImportedGradient imported(const std::string& text) {
    const auto outcome = readCss(text, "test.css");
    if (!outcome) {
        ADD_FAILURE() << text << ": " << outcome.error().reason;
        return {};
    }
    return outcome.value();
}

std::string refusal(const std::string& text) {
    const auto outcome = readCss(text, "test.css");
    if (outcome)
        return "accepted";
    EXPECT_EQ(outcome.error().file, "test.css");
    return outcome.error().reason;
}

std::vector<double> positionsIn(const std::string& text) {
    std::vector<double> positions;
    const auto result = imported(text);
    for (const auto& stop : result.gradient.ColorList())
        positions.push_back(stop.Percent());
    return positions;
}

double angleOf(const std::string& direction) {
    return static_cast<double>(imported("linear-gradient(" + direction + ", red, blue)").gradient.Angle());
}

// CSS turns clockwise from upwards, the record counter-clockwise from the right.
TEST(CssGradient, AnglesTurnFromUpwardsToTheRecordsFromTheRight) {
    EXPECT_EQ(angleOf("90deg"), 0);
    EXPECT_EQ(angleOf("to right"), 0);
    EXPECT_EQ(angleOf("0.5turn"), -90);
    EXPECT_EQ(angleOf("to bottom"), -90);
    EXPECT_EQ(angleOf("0"), 90);
    EXPECT_EQ(angleOf("to top left"), 135);
    EXPECT_EQ(angleOf("100grad"), 0);
    EXPECT_NEAR(angleOf("1.5707963268rad"), 0, 1e-6);
    EXPECT_EQ(imported("linear-gradient(red, blue)").gradient.Angle(), -90.F);
}

TEST(CssGradient, PositionsThatAreLeftOutAreSpreadEvenly) {
    EXPECT_THAT(positionsIn("linear-gradient(red, lime, blue, white, black)"),
                ElementsAre(0, 0.25, 0.5, 0.75, 1));
    EXPECT_THAT(positionsIn("linear-gradient(red 20%, lime, blue 80%)"), ElementsAre(0.2, 0.5, 0.8));
}

TEST(CssGradient, APositionBeforeAnEarlierOneMovesUpToIt) {
    EXPECT_THAT(positionsIn("linear-gradient(red 60%, blue 20%, white 100%)"), ElementsAre(0.6, 0.6, 1));
}

TEST(CssGradient, AColorWithTwoPositionsIsTwoStops) {
    EXPECT_THAT(positionsIn("linear-gradient(red 10% 30%, blue)"), ElementsAre(0.1, 0.3, 1));
}

TEST(CssGradient, AMidpointReachesHalfOfTheWayThere) {
    const auto result = imported("linear-gradient(black, 25%, white)");
    double nearest = 1;
    double red = 0;
    for (const auto& stop : result.gradient.ColorList())
        if (std::abs(stop.Percent() - 0.25) < nearest) {
            nearest = std::abs(stop.Percent() - 0.25);
            red = stop.ColorRGB().red;
        }
    EXPECT_EQ(nearest, 0);
    EXPECT_EQ(red, 32768);
    EXPECT_THAT(result.notes, ElementsAre(HasSubstr("midpoints")));
}

TEST(CssGradient, ACirclesCenterIsBothStartAndEnd) {
    const auto center = [](const std::string& position) {
        const auto gradient = imported("radial-gradient(circle at " + position + ", red, blue)").gradient;
        EXPECT_EQ(gradient.Type(), kRadialGradient);
        EXPECT_EQ(gradient.Start(), gradient.End());
        return std::pair(gradient.Start().h, gradient.Start().v);
    };
    EXPECT_EQ(center("30% 40%"), std::pair(0.3, 0.4));
    EXPECT_EQ(center("left"), std::pair(0.0, 0.5));
    EXPECT_EQ(center("top right"), std::pair(1.0, 0.0));
    EXPECT_EQ(center("bottom"), std::pair(0.5, 1.0));
    EXPECT_EQ(center("25% center"), std::pair(0.25, 0.5));
}

TEST(CssGradient, TheGradientIsFoundInADeclarationAndColorsInAnyForm) {
    const auto result = imported(
        ".a{background:/* x */ LINEAR-gradient(to left,#f00,rgb(0 0 255) 50%,hsl(120deg 100% 50%))}");
    const auto& stops = result.gradient.ColorList();
    ASSERT_EQ(stops.size(), 3U);
    EXPECT_EQ(stops.front().ColorRGB(), (RGBColor{65535, 0, 0}));
    EXPECT_EQ(std::next(stops.begin())->ColorRGB(), (RGBColor{0, 0, 65535}));
    EXPECT_EQ(stops.back().ColorRGB(), (RGBColor{0, 65535, 0}));
    EXPECT_THAT(result.notes, IsEmpty());
}

TEST(CssGradient, WhatCannotBeHeldIsSaid) {
    const auto noteOn = [](const std::string& text) { return imported(text).notes; };
    EXPECT_THAT(noteOn("linear-gradient(rgb(1 2 3 / 50%), blue)"), ElementsAre(HasSubstr("opacity")));
    EXPECT_THAT(noteOn("repeating-linear-gradient(red, blue 20%)"), ElementsAre(HasSubstr("repetition")));
    EXPECT_THAT(noteOn("linear-gradient(in oklch longer hue, red, blue)"),
                ElementsAre(HasSubstr("color space")));
    EXPECT_THAT(noteOn("linear-gradient(oklch(60% 0.1 20), blue)"), ElementsAre(HasSubstr("color space")))
        << "this is what colors written so imply";
    EXPECT_THAT(noteOn("linear-gradient(in srgb, oklch(60% 0.1 20), blue)"), IsEmpty());
    EXPECT_THAT(noteOn("linear-gradient(to top right, red, blue)"), ElementsAre(HasSubstr("corner")));
    EXPECT_THAT(noteOn("linear-gradient(red, lime 20px, blue)"), ElementsAre(HasSubstr("lengths")));
    EXPECT_THAT(noteOn("radial-gradient(red, blue)"), ElementsAre(HasSubstr("ellipse")));
    EXPECT_THAT(noteOn("radial-gradient(circle closest-side, red, blue)"), ElementsAre(HasSubstr("size")));
    EXPECT_THAT(noteOn("linear-gradient(red, blue), linear-gradient(red, blue)"),
                ElementsAre(HasSubstr("first")));
}

TEST(CssGradient, WhatIsNoGradientIsRefusedWithItsReason) {
    EXPECT_THAT(refusal(""), HasSubstr("no CSS gradient"));
    EXPECT_THAT(refusal("linear-gradient(red"), HasSubstr("no CSS gradient"));
    EXPECT_THAT(refusal("conic-gradient(red, blue)"), HasSubstr("conic-gradient()"));
    EXPECT_THAT(refusal("linear-gradient(to nowhere, red, blue)"), HasSubstr("to nowhere"));
    EXPECT_THAT(refusal("linear-gradient(red, notacolor)"), HasSubstr("notacolor"));
    EXPECT_THAT(refusal("linear-gradient(red, 20%, 30%, blue)"), HasSubstr("midpoint"));
    EXPECT_THAT(refusal("linear-gradient()"), HasSubstr("no color stops"));
    EXPECT_THAT(refusal("linear-gradient(red, blue 10% 20% 30%)"), HasSubstr("blue 10% 20% 30%"));
}

TEST(CssGradient, WhatIsWrittenReadsBackAsTheSameGradient) {
    CGradientData linear;
    linear.SetAngle(33.25F);
    linear.ColorList() = {
        {{1, 2, 3}, -0.125}, {{65535, 0, 257}, 0.3}, {{0, 9, 0}, 0.3}, {{400, 500, 600}, 1.5}};
    CGradientData radial = linear;
    radial.SetType(kRadialGradient);
    radial.SetStart({0.25, 0.75});
    radial.SetEnd({0.25, 0.75});
    for (const auto& gradient : {linear, radial}) {
        const auto written = writeCss(gradient);
        EXPECT_THAT(written.notes, IsEmpty());
        const auto back = imported(written.text).gradient;
        EXPECT_EQ(back.Type(), gradient.Type());
        ASSERT_EQ(back.ColorList().size(), 4U);
        for (auto i = gradient.ColorList().begin(), j = back.ColorList().begin(); j != back.ColorList().end();
             ++i, ++j) {
            EXPECT_EQ(i->ColorRGB(), j->ColorRGB());
            EXPECT_NEAR(i->Percent(), j->Percent(), 1e-15);
        }
    }
    EXPECT_EQ(imported(writeCss(linear).text).gradient.Angle(), 33.25F);
    EXPECT_EQ(imported(writeCss(radial).text).gradient.End(), radial.End());
}

TEST(CssGradient, ASecondCenterIsLeftOutAndSaid) {
    CGradientData radial;
    radial.SetType(kRadialGradient);
    radial.SetStart({0.1, 0.1});
    EXPECT_THAT(writeCss(radial).notes, ElementsAre(HasSubstr("one center")));
}

} // namespace
