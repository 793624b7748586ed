// The filter functions of style sheets, by the formulas that Filter Effects gives for them.
#include "easel/svg/read/FilterFunctions.h"

#include <gtest/gtest.h>

using namespace easel::svg;
using namespace easel::drawing;

namespace {

constexpr LengthContext kLengths{100, 200, 20, 10};
const ColorPaint kCurrent{{1, 2, 3}, 1};

std::optional<FilterEffect> made(std::string_view name, std::string_view arguments) {
    return functionEffect(name, arguments, kLengths, kCurrent);
}

template <class Effect> Effect effectOf(std::string_view name, std::string_view arguments) {
    return std::get<Effect>(made(name, arguments).value());
}

TEST(FilterFunctions, BlurIsALengthNotBelowNought) {
    EXPECT_EQ(effectOf<BlurEffect>("blur", "").deviation, (Point{0, 0}));
    EXPECT_EQ(effectOf<BlurEffect>("BLUR", " 2em ").deviation, (Point{40, 40}));
    for (const char* wrong : {"-1px", "20%", "wide", "1e9"})
        EXPECT_FALSE(made("blur", wrong)) << wrong;
    EXPECT_EQ(reachOf(*made("blur", "2px")), 6);
}

TEST(FilterFunctions, AShadowHasTwoOrThreeLengthsAndAColorInAnyPlace) {
    const auto plain = effectOf<DropShadowEffect>("drop-shadow", "3px 4px");
    EXPECT_EQ(plain.by, (Point{3, 4}));
    EXPECT_EQ(plain.deviation, (Point{0, 0}));
    EXPECT_EQ(plain.color.color, kCurrent.color);
    EXPECT_EQ(reachOf(*made("drop-shadow", "3px 4px")), 5) << "the length of the way";
    const auto colored = effectOf<DropShadowEffect>("drop-shadow", "rgb(255 0 0 / 50%)  1px -1px\t2px");
    EXPECT_EQ(colored.deviation, (Point{2, 2}));
    EXPECT_EQ(colored.color.color, (Rgb16{65535, 0, 0}));
    EXPECT_EQ(colored.color.opacity, 0.5);
    EXPECT_EQ(effectOf<DropShadowEffect>("drop-shadow", "1px 1px lime").color.color, (Rgb16{0, 65535, 0}));
    for (const char* wrong :
         {"", "1px", "1px 2px 3px 4px", "1px 2px -3px", "1px 20%", "1px 2px no-color", "1px 1e9px", "1e9 1"})
        EXPECT_FALSE(made("drop-shadow", wrong)) << wrong;
}

TEST(FilterFunctions, AHueTurnsByAnAngleInAnyUnit) {
    const auto half = effectOf<ColorMatrixEffect>("hue-rotate", "180deg").matrix;
    EXPECT_NEAR(half[0], 0.213 - 0.787, 1e-9);
    for (const char* same : {"200grad", "3.14159265358979rad", "0.5TURN"})
        EXPECT_NEAR(effectOf<ColorMatrixEffect>("hue-rotate", same).matrix[0], half[0], 1e-9) << same;
    for (const char* none : {"", "0", "0deg"})
        EXPECT_NEAR(effectOf<ColorMatrixEffect>("hue-rotate", none).matrix[0], 1, 1e-12) << none;
    for (const char* wrong : {"180", "around", "1 deg", "0px", "1e999deg"})
        EXPECT_FALSE(made("hue-rotate", wrong)) << wrong;
    EXPECT_EQ(reachOf(*made("hue-rotate", "1deg")), 0);
}

TEST(FilterFunctions, TransfersAreTheLinesOfTheStandard) {
    const auto line = [](const char* name, const char* amount) {
        const auto function = effectOf<TransferEffect>(name, amount).functions[0];
        EXPECT_EQ(function.kind, TransferFunction::Kind::Linear);
        return std::pair(function.slope, function.offset);
    };
    EXPECT_EQ(line("brightness", "150%"), std::pair(1.5, 0.0));
    EXPECT_EQ(line("contrast", "2"), std::pair(2.0, -0.5));
    EXPECT_EQ(line("invert", ""), std::pair(-1.0, 1.0));
    EXPECT_EQ(line("invert", "3"), std::pair(-1.0, 1.0)) << "more than all is all";
    EXPECT_EQ(line("invert", "25%"), std::pair(0.5, 0.25));
    const auto opacity = effectOf<TransferEffect>("opacity", "40%").functions;
    EXPECT_EQ(opacity[0].kind, TransferFunction::Kind::Identity);
    EXPECT_EQ(opacity[3].slope, 0.4);
    EXPECT_EQ(effectOf<TransferEffect>("opacity", "4").functions[3].slope, 1);
}

TEST(FilterFunctions, ColorsMoveTowardsGrayOrSepia) {
    EXPECT_NEAR(effectOf<ColorMatrixEffect>("grayscale", "").matrix[0], 0.2126, 1e-12);
    EXPECT_NEAR(effectOf<ColorMatrixEffect>("grayscale", "50%").matrix[0], 0.2126 + 0.7874 * 0.5, 1e-12);
    EXPECT_NEAR(effectOf<ColorMatrixEffect>("sepia", "2").matrix[1], 0.769, 1e-12);
    EXPECT_NEAR(effectOf<ColorMatrixEffect>("sepia", "0").matrix[1], 0, 1e-12);
    EXPECT_NEAR(effectOf<ColorMatrixEffect>("saturate", "0").matrix[1], 0.715, 1e-12);
}

TEST(FilterFunctions, OtherNamesAndAmountsAreNone) {
    EXPECT_FALSE(made("sharpen", "1"));
    for (const char* wrong : {"-1", "much", "1e999", "1 2"})
        EXPECT_FALSE(made("brightness", wrong)) << wrong;
}

} // namespace
