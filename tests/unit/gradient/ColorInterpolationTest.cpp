// The color of a gradient at a position.
#include "Gradient/model/ColorInterpolation.h"
#include "tests/unit/gradient/Records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

RGBColor ColorAt(const CGradientData& gradient, double position) {
    return CalcColorGradient(gradient, position).ColorRGB();
}

std::uint16_t Floored(std::uint16_t from, std::uint16_t to, int numerator, int denominator) {
    // Whole-number arithmetic, independent of the code under test; never negative, so that division floors.
    return static_cast<std::uint16_t>((from * (denominator - numerator) + to * numerator) / denominator);
}

} // namespace

TEST(ColorInterpolation, TruncatesEachChannelAndKeepsThePositionWhole) {
    const CGradientData gradient = RecordWith({{0.0, kBlack}, {1.0, kWhite}});
    EXPECT_EQ(ColorAt(gradient, 0.5), (RGBColor{32767, 32767, 32767}));
    EXPECT_EQ(ColorAt(gradient, 0.25), (RGBColor{16383, 16383, 16383}));
    EXPECT_EQ(ColorAt(gradient, 1.0), kWhite);
    EXPECT_EQ(CalcColorGradient(gradient, 0.3).Percent(), 0.3);
}

TEST(ColorInterpolation, TruncatesAFallingChannelDownwardsToo) {
    const CGradientData gradient = RecordWith({{0.0, kRed}, {1.0, kBlue}});
    EXPECT_EQ(ColorAt(gradient, 0.5), (RGBColor{32767, 0, 32767}));
}

TEST(ColorInterpolation, DoesNotExtrapolateBeyondTheOuterStops) {
    const CGradientData gradient = RecordWith({{0.2, kRed}, {0.8, kBlue}});
    EXPECT_EQ(ColorAt(gradient, 0.1), kRed);
    EXPECT_EQ(ColorAt(gradient, 0.9), kBlue);
    EXPECT_EQ(ColorAt(gradient, -3.0), kRed);
    EXPECT_EQ(ColorAt(gradient, 7.0), kBlue);
}

TEST(ColorInterpolation, TakesTheLaterOfTwoStopsAtThePosition) {
    const CGradientData gradient = RecordWith({{0.0, kBlack}, {0.5, kGreen}, {0.5, kRed}, {1.0, kWhite}});
    EXPECT_EQ(ColorAt(gradient, 0.5), kRed);
}

TEST(ColorInterpolation, LeadsUpToTheEarlierOfTwoStopsAtOnePosition) {
    const CGradientData gradient = RecordWith({{0.0, kBlack}, {0.5, kGreen}, {0.5, kRed}, {1.0, kWhite}});
    EXPECT_EQ(ColorAt(gradient, 0.25), (RGBColor{0, 32767, 0}));
    EXPECT_EQ(ColorAt(gradient, 0.75), (RGBColor{65535, 32767, 32767}));
}

TEST(ColorInterpolation, OneStopGivesItsColorEverywhere) {
    const CGradientData gradient = RecordWith({{0.4, kGreen}});
    for (const double position : {0.0, 0.4, 1.0}) {
        EXPECT_EQ(ColorAt(gradient, position), kGreen);
    }
}

TEST(ColorInterpolation, InAnyOrderLeadsFromTheLastStopBelowToTheFirstOfTheNearestAbove) {
    // Below 0.5 the red stop is the last in the list; of those at or above it the green one is the nearest.
    const CGradientData unsorted = RecordWith({{0.5, kGreen}, {0.25, kRed}, {0.5, kWhite}, {1.0, kBlue}});
    EXPECT_EQ(ColorAt(unsorted, 0.375), (RGBColor{32767, 32767, 0}));
    const CGradientData exact = RecordWith({{0.5, kGreen}, {0.25, kRed}, {1.0, kBlue}});
    EXPECT_EQ(ColorAt(exact, 0.5), kGreen);
}

TEST(ColorInterpolation, LeavesTheRecordAsItWas) {
    // Neither constant nor sorted, so that sorting it, or putting the new stop into it, would show.
    CGradientData gradient = RecordWith({{0.4, kGreen}, {0.0, kRed}, {1.0, kBlue}});
    gradient.SetType(kRadialGradient);
    CalcColorGradient(gradient, 0.7);
    EXPECT_EQ(StopsOf(gradient.ColorList()), (std::vector<Stop>{{0.4, kGreen}, {0.0, kRed}, {1.0, kBlue}}));
    EXPECT_EQ(gradient.Type(), kRadialGradient);
}

TEST(ColorInterpolation, MatchesWholeNumberArithmeticOnDyadicPositions) {
    std::mt19937 random(20240607);
    std::uniform_int_distribution<int> channel(0, 65535);
    std::uniform_int_distribution<int> part(0, 64);
    const auto color = [&] {
        auto const next = [&] { return static_cast<std::uint16_t>(channel(random)); };
        return RGBColor{next(), next(), next()};
    };
    for (int round = 0; round < 2000; ++round) {
        const RGBColor from = color();
        const RGBColor to = color();
        const int n = part(random);
        // Sixty-fourths are exact in floating point, so both ways must agree to the last bit.
        const RGBColor expected{Floored(from.red, to.red, n, 64), Floored(from.green, to.green, n, 64),
                                Floored(from.blue, to.blue, n, 64)};
        EXPECT_EQ(ColorAt(RecordWith({{0.0, from}, {1.0, to}}), n / 64.0), expected) << n << "/64";
    }
}

TEST(ColorInterpolation, KeepsTheLowSixteenBitsOfWhatAnIntegerHolds) {
    // Out of order, a ramp is followed far beyond its stops: here to twice the position and two more.
    const CGradientData gradient = RecordWith({{1.0, kBlack}, {0.5, RGBColor{1, 0, 0}}});
    EXPECT_EQ(ColorAt(gradient, -32767.0), (RGBColor{0, 0, 0}));
    EXPECT_EQ(ColorAt(gradient, -1073741822.75), (RGBColor{65535, 0, 0}));
    EXPECT_EQ(ColorAt(gradient, -1073741823.0), kBlack);
}

TEST(ColorInterpolation, SurvivesPositionsThatAreNotNumbers) {
    const double nan = std::nan("");
    const double infinity = std::numeric_limits<double>::infinity();
    const CGradientData odd = RecordWith({{nan, kRed}, {0.5, kGreen}, {infinity, kBlue}, {nan, kWhite}});
    for (const double position : {nan, infinity, -infinity, 0.5, 1e308}) {
        CalcColorGradient(odd, position);
    }
    // A channel that cannot be computed is dark.
    EXPECT_EQ(ColorAt(RecordWith({{0.0, kWhite}, {1.0, kWhite}}), nan), kBlack);
    // A stop whose position is not a number is never the one below or above.
    EXPECT_EQ(ColorAt(RecordWith({{0.0, kRed}, {nan, kWhite}, {1.0, kRed}}), 0.5), kRed);
}
