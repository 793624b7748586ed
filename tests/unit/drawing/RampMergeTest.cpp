// Ramps made of other ramps: opacity put over colors, and repeats laid out side by side.
#include "easel/drawing/FadedRamp.h"
#include "easel/drawing/UnrolledRamp.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace {

using namespace easel::drawing;

constexpr Rgb16 kBlack{0, 0, 0};
constexpr Rgb16 kWhite{65535, 65535, 65535};
constexpr Rgb16 kRed{65535, 0, 0};

std::vector<RampStop> fadedStops(const std::vector<RampStop>& colors,
                                 const std::vector<OpacityStop>& opacity) {
    return faded(Ramp(colors), opacity).stops();
}

TEST(FadedRamp, HasTheStopsOfBothEachOnce) {
    EXPECT_EQ(fadedStops({{0, kBlack}, {1, {40000, 20000, 8000}}}, {{0.25, 0}, {0.75, 1}}),
              (std::vector<RampStop>{{0, kBlack, 0},
                                     {0.25, {10000, 5000, 2000}, 0},
                                     {0.75, {30000, 15000, 6000}, 1},
                                     {1, {40000, 20000, 8000}, 1}}));
    EXPECT_EQ(fadedStops({{0, kBlack}, {1, kWhite}}, {{0, 0.5}, {1, 0.25}}),
              (std::vector<RampStop>{{0, kBlack, 0.5}, {1, kWhite, 0.25}}));
}

TEST(FadedRamp, GoesOnWhenOneOfThemIsOver) {
    EXPECT_EQ(fadedStops({{0.5, kRed}}, {{0.25, 0}, {0.75, 1}}),
              (std::vector<RampStop>{{0.25, kRed, 0}, {0.5, kRed, 0.5}, {0.75, kRed, 1}}));
    EXPECT_EQ(fadedStops({{0.25, kBlack}, {0.75, {40000, 20000, 8000}}}, {{0.5, 0.5}}),
              (std::vector<RampStop>{
                  {0.25, kBlack, 0.5}, {0.5, {20000, 10000, 4000}, 0.5}, {0.75, {40000, 20000, 8000}, 0.5}}));
}

TEST(FadedRamp, KeepsAStepOfEitherAsAStep) {
    EXPECT_EQ(
        fadedStops({{0.5, kBlack}, {0.5, kRed}, {0.5, kWhite}}, {{0, 1}, {1, 0}}),
        (std::vector<RampStop>{{0, kBlack, 1}, {0.5, kBlack, 0.5}, {0.5, kWhite, 0.5}, {1, kWhite, 0}}));
    EXPECT_EQ(fadedStops({{0, kBlack}, {1, {40000, 20000, 8000}}}, {{0.5, 1}, {0.5, 0.25}}),
              (std::vector<RampStop>{{0, kBlack, 1},
                                     {0.5, {20000, 10000, 4000}, 1},
                                     {0.5, {20000, 10000, 4000}, 0.25},
                                     {1, {40000, 20000, 8000}, 0.25}}));
    EXPECT_EQ(fadedStops({{0.5, kBlack}, {0.5, kWhite}}, {{0.5, 0}, {0.5, 1}}),
              (std::vector<RampStop>{{0.5, kBlack, 0}, {0.5, kWhite, 1}}))
        << "both at one place";
}

const Ramp kSlope({{0, kBlack}, {0.25, kRed}, {1, kWhite}});

// What the ramp of these stops shows at a place, with its ends going on for ever.
void expectLike(const Ramp& ramp, double at, const RampColor& meant) {
    const RampColor is = ramp.at(at);
    EXPECT_NEAR(is.red, meant.red, 1e-6) << at;
    EXPECT_NEAR(is.green, meant.green, 1e-6) << at;
    EXPECT_NEAR(is.opacity, meant.opacity, 1e-9) << at;
}

TEST(UnrolledRamp, RepeatsAndReflectsLikeTheSpreadItStandsFor) {
    for (const auto& [low, high] :
         {std::pair{-2.3, 3.4}, std::pair{0.0, 2.0}, std::pair{1.2, 1.7}, std::pair{-3.0, -1.0}}) {
        const auto repeated = unrolled(kSlope, Spread::Repeat, low, high, 100);
        const auto reflected = unrolled(kSlope, Spread::Reflect, low, high, 100);
        ASSERT_TRUE(repeated && reflected);
        for (double t = low + 0.013; t < high; t += 0.05) {
            expectLike(*repeated, t, kSlope.at(t - std::floor(t)));
            expectLike(*reflected, t, kSlope.at(std::abs(t - 2 * std::round(t / 2))));
        }
    }
    EXPECT_EQ(unrolled(kSlope, Spread::Pad, -2, 3, 1), kSlope);
}

TEST(UnrolledRamp, LaysOutNoMorePeriodsThanAreSeen) {
    EXPECT_EQ(unrolled(kSlope, Spread::Repeat, 0, 2, 100)->stops().size(), 6U);
    EXPECT_EQ(unrolled(kSlope, Spread::Repeat, 0.5, 2.5, 100)->stops().size(), 9U);
    EXPECT_EQ(unrolled(kSlope, Spread::Repeat, 1, 1, 100)->stops().size(), 3U) << "one at least";
    const auto before = unrolled(kSlope, Spread::Reflect, -1, 0, 100);
    EXPECT_NEAR(before->stops().front().position, -1, 1e-12);
    EXPECT_EQ(before->stops().back().position, 0);
}

TEST(UnrolledRamp, IsMissingWhereItTookMoreStopsThanAllowed) {
    EXPECT_TRUE(unrolled(kSlope, Spread::Repeat, 0, 3, 9));
    EXPECT_FALSE(unrolled(kSlope, Spread::Repeat, 0, 3, 8));
    EXPECT_FALSE(unrolled(kSlope, Spread::Repeat, 0, std::numeric_limits<double>::infinity(), 100));
}

TEST(UnrolledRamp, APeriodIsFlatBeforeItsFirstAndAfterItsLastStop) {
    const Ramp inner({{0.25, kBlack, 0.5}, {0.75, kWhite, 0.75}});
    const auto twice = unrolled(inner, Spread::Repeat, 0, 2, 100);
    ASSERT_TRUE(twice);
    EXPECT_EQ(twice->stops(), (std::vector<RampStop>{{0, kBlack, 0.5},
                                                     {0.25, kBlack, 0.5},
                                                     {0.75, kWhite, 0.75},
                                                     {1, kWhite, 0.75},
                                                     {1, kBlack, 0.5},
                                                     {1.25, kBlack, 0.5},
                                                     {1.75, kWhite, 0.75},
                                                     {2, kWhite, 0.75}}));
}

TEST(UnrolledRamp, AStepHasTheColorThatFollowsItOnTheRampRunningBackwardToo) {
    const Ramp step({{0, kBlack}, {0.25, kBlack}, {0.25, kWhite}, {1, kWhite}});
    const auto there = unrolled(step, Spread::Reflect, 0, 2, 100);
    ASSERT_TRUE(there);
    EXPECT_EQ(there->at(0.25).red, 255);
    EXPECT_EQ(there->at(1.75).red, 255) << "the place that 0.25 is mirrored to";
    EXPECT_EQ(there->at(1.76).red, 0);
    EXPECT_EQ(there->stops().back().position, 2) << "nothing goes beyond the period";
}

} // namespace
