// The less common forms of CSS gradients: where a color space stands, how a center is said, what is no
// gradient.
#include "easel/exchange/CssGradient.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>

using namespace easel::exchange;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::optional<ImportedGradient> read(const std::string& arguments) {
    const auto outcome = readCss(arguments, "test.css");
    return outcome ? std::optional(outcome.value()) : std::nullopt;
}

std::optional<double> angleOf(const std::string& direction) {
    const auto result = read("linear-gradient(" + direction + ", red, blue)");
    return result ? std::optional(static_cast<double>(result->gradient.Angle())) : std::nullopt;
}

std::optional<std::pair<double, double>> centerOf(const std::string& prelude) {
    const auto result = read("radial-gradient(" + prelude + ", red, blue)");
    return result ? std::optional(std::pair(result->gradient.End().h, result->gradient.End().v))
                  : std::nullopt;
}

std::vector<double> positionsOf(const std::string& stops) {
    std::vector<double> positions;
    if (const auto result = read("linear-gradient(" + stops + ")"))
        for (const auto& stop : result->gradient.ColorList())
            positions.push_back(stop.Percent());
    return positions;
}

TEST(CssGradientForms, ADirectionIsOneAngleOrOneOrTwoSides) {
    EXPECT_EQ(angleOf("to left"), 180);
    EXPECT_EQ(angleOf("TO TOP"), 90);
    EXPECT_EQ(angleOf("to right bottom"), -45);
    EXPECT_EQ(angleOf("+180deg"), -90);
    for (const char* none : {"to", "to left left", "to left right", "to top bottom", "to top left bottom",
                             "to center", "45deg 5deg", "45", "45em", "steep", "left"})
        EXPECT_FALSE(angleOf(none)) << none;
}

TEST(CssGradientForms, AColorSpaceStandsBeforeOrAfterTheDirection) {
    for (const char* direction :
         {"in oklch 90deg", "90deg in oklch", "in oklch longer hue 90deg", "90deg in oklch longer hue"}) {
        EXPECT_EQ(angleOf(direction), 0) << direction;
        EXPECT_THAT(read(std::string("linear-gradient(") + direction + ", red, blue)")->notes,
                    Contains(HasSubstr("color space")));
    }
    EXPECT_EQ(angleOf("in srgb to right"), 0);
    EXPECT_EQ(angleOf("in srgb"), -90);
    EXPECT_EQ(angleOf("in"), -90);
    EXPECT_EQ(centerOf("in srgb circle at 10% 20%"), std::pair(0.1, 0.2));
    EXPECT_EQ(centerOf("circle at 10% 20% in oklab"), std::pair(0.1, 0.2));
}

TEST(CssGradientForms, ACenterIsTwoCoordinatesInTheOrderTheyTell) {
    EXPECT_EQ(centerOf("circle at top left"), std::pair(0.0, 0.0));
    EXPECT_EQ(centerOf("circle at left top"), std::pair(0.0, 0.0));
    EXPECT_EQ(centerOf("circle at bottom 25%"), std::pair(0.25, 1.0));
    EXPECT_EQ(centerOf("circle at center right"), std::pair(1.0, 0.5));
    EXPECT_EQ(centerOf("circle at 0 100%"), std::pair(0.0, 1.0));
    EXPECT_EQ(centerOf("circle at 10px 20px"), std::pair(0.5, 0.5));
    EXPECT_EQ(centerOf("at 0 0"), std::pair(0.0, 0.0));
    for (const char* none : {"circle at", "circle at 1% 2% 3%", "circle at left right",
                             "circle at top bottom", "circle at here", "circle at left far", "square"})
        EXPECT_FALSE(centerOf(none)) << none;
    EXPECT_THAT(read("radial-gradient(circle at 10px 20px, red, blue)")->notes,
                Contains(HasSubstr("center given as a length")));
}

TEST(CssGradientForms, SizesOfCirclesAreSaidToBeLeftOut) {
    for (const char* size : {"closest-side", "closest-corner", "farthest-side", "20px"})
        EXPECT_THAT(read(std::string("radial-gradient(circle ") + size + ", red, blue)")->notes,
                    ElementsAre(HasSubstr("size")))
            << size;
    EXPECT_THAT(read("radial-gradient(circle farthest-corner, red, blue)")->notes, IsEmpty());
    EXPECT_THAT(read("radial-gradient(ellipse 10px 20px, red, blue)")->notes,
                ElementsAre(HasSubstr("ellipse"), HasSubstr("size")));
}

TEST(CssGradientForms, PositionsAreSharesAndColorsMayFollowThem) {
    EXPECT_THAT(positionsOf("0 red, 50% lime, blue 100%"), ElementsAre(0, 0.5, 1));
    EXPECT_THAT(positionsOf("red 1em, blue 50%"), ElementsAre(0, 0.5));
    for (const char* none : {"red 5, blue", "red lime, blue", "red, 10% 20%, blue", "10%, red, blue",
                             "red, blue, 10%", "red, , blue"})
        EXPECT_THAT(positionsOf(none), IsEmpty()) << none;
}

TEST(CssGradientForms, AMidpointAtOrBeyondAStopIsAHardStop) {
    // Everything behind a midpoint at the first stop has the second color; everything before one at the
    // second, the first.
    const auto redsOf = [](const std::string& stops) {
        std::vector<std::pair<double, int>> reds;
        const auto result = read("linear-gradient(" + stops + ")");
        for (const auto& stop : result->gradient.ColorList())
            reds.emplace_back(stop.Percent(), stop.ColorRGB().red);
        return reds;
    };
    EXPECT_THAT(redsOf("black 20%, 20%, red 80%"),
                ElementsAre(std::pair(0.2, 0), std::pair(0.2, 65535), std::pair(0.8, 65535)));
    EXPECT_THAT(redsOf("black 20%, 80%, red 80%"),
                ElementsAre(std::pair(0.2, 0), std::pair(0.8, 0), std::pair(0.8, 65535)));
    EXPECT_EQ(redsOf("black 50%, 50%, red 50%").front(), std::pair(0.5, 0));
    EXPECT_EQ(redsOf("black 50%, 50%, red 50%").back(), std::pair(0.5, 65535));
}

TEST(CssGradientForms, ColorsOfNewerFormsImplyTheirColorSpace) {
    for (const char* color :
         {"lab(50% 0 0)", "lch(50% 0 0)", "oklab(0.5 0 0)", "oklch(0.5 0 0)", "color(srgb 1 0 0)"})
        EXPECT_THAT(read(std::string("linear-gradient(red, ") + color + ")")->notes,
                    ElementsAre(HasSubstr("color space")))
            << color;
    EXPECT_THAT(read("linear-gradient(red, hsl(120 100% 50%))")->notes, IsEmpty());
}

TEST(CssGradientForms, OpenCommentsAndOtherFunctionsAreNoGradients) {
    EXPECT_TRUE(read("a { width: calc(1px + 2px); background: linear-gradient(red, blue) }"));
    EXPECT_TRUE(read("/* ) */ linear-gradient(red/* , lime */, blue) /* open"));
    EXPECT_TRUE(read("linear-gradient(rgb(1, 2, 3), blue) )"));
    EXPECT_FALSE(read("/* linear-gradient(red, blue)"));
    EXPECT_FALSE(read("gradient(red, blue)"));
    EXPECT_FALSE(read("repeating-conic-gradient(red, blue)"));
    std::string many = "linear-gradient(red";
    for (int i = 0; i < 10'000; ++i)
        many += ",red";
    EXPECT_FALSE(read(many + ")"));
}

TEST(CssGradientForms, NumbersHaveToBeFiniteDecimals) {
    for (const char* none : {"infdeg", "nandeg", "1e999deg", "12d3g", "++5deg", "0x10deg", "12!"})
        EXPECT_FALSE(angleOf(none)) << none;
    EXPECT_EQ(angleOf("9e1DEG"), 0);
}

TEST(CssGradientForms, WhatIsNoNumberIsReplacedAndSaid) {
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    CGradientData linear;
    linear.SetAngle(std::numeric_limits<float>::infinity());
    linear.ColorList() = {{{0, 0, 0}, 0}, {{1, 1, 1}, kNan}, {{65535, 65535, 65535}, 1}};
    const ExportedGradient written = writeCss(linear);
    EXPECT_EQ(written.text, "linear-gradient(90deg, #000000 0%, #ffffff 100%)\n");
    EXPECT_THAT(written.notes,
                ElementsAre(HasSubstr("angle is no number"), HasSubstr("position is no number")));
    CGradientData radial;
    radial.SetType(kRadialGradient);
    for (const TPoint<double> center : {TPoint<double>{kNan, 0.5}, TPoint<double>{0.5, kNan}}) {
        radial.SetStart(center);
        radial.SetEnd(center);
        EXPECT_THAT(writeCss(radial).text, testing::StartsWith("radial-gradient(circle farthest-corner, "));
        EXPECT_THAT(writeCss(radial).notes, Contains(HasSubstr("center is no number")));
    }
}

TEST(CssGradientForms, AnglesAreWrittenFromNoughtToAFullTurn) {
    CGradientData linear;
    for (const auto& [angle, text] : {std::pair(180.F, "270deg"), std::pair(-270.F, "0deg"),
                                      std::pair(0.F, "90deg"), std::pair(91.F, "359deg")}) {
        linear.SetAngle(angle);
        EXPECT_THAT(writeCss(linear).text, testing::StartsWith(std::string("linear-gradient(") + text + ", "))
            << angle;
    }
}

} // namespace
