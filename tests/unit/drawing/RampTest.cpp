// Ramps of unusual stops.
#include "easel/drawing/Ramp.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

using namespace easel::drawing;

constexpr Rgb16 kRed{65535, 0, 0};
constexpr Rgb16 kBlue{0, 0, 65535};
constexpr double kFar = std::numeric_limits<double>::infinity();

TEST(Ramp, OfNoStopsIsTransparentBlackFromZeroOn) {
    EXPECT_EQ(Ramp().stops(), (std::vector<RampStop>{{0, {}, 0}}));
    EXPECT_FALSE(Ramp().opaque());
}

TEST(Ramp, LeavesOutStopsThatAreNowhereAndKeepsTheirFirstColorIfNoneRemains) {
    EXPECT_EQ(Ramp({{std::nan(""), kRed, 1}, {0.5, kBlue, 1}}).stops(),
              (std::vector<RampStop>{{0.5, kBlue, 1}}));
    EXPECT_EQ(Ramp({{std::nan(""), kRed, 0.5}, {std::nan(""), kBlue, 1}}).stops(),
              (std::vector<RampStop>{{0, kRed, 0.5}}));
}

TEST(Ramp, NeverReachesAStopAtInfinity) {
    const Ramp ramp({{-kFar, kRed, 1}, {0, kBlue, 1}, {1, kRed, 1}, {kFar, kBlue, 1}});
    EXPECT_EQ(ramp.at(-1000).blue, 255);
    EXPECT_EQ(ramp.at(-1000).red, 0);
    EXPECT_EQ(ramp.at(1000).red, 255);
    EXPECT_EQ(ramp.at(1000).blue, 0);
}

TEST(Ramp, TakesOpacityBeyondOneForOne) {
    const Ramp ramp({{0, kRed, 1.5}, {1, kBlue, 1}});
    EXPECT_TRUE(ramp.opaque());
    EXPECT_EQ(ramp.stops().front().opacity, 1);
    EXPECT_EQ(Ramp({{0, kRed, -0.5}}).stops().front().opacity, 0);
}

TEST(Ramp, IsCutToTheNearestColorsAtBothEnds) {
    const Ramp ramp({{-1, {0, 0, 0}, 0}, {3, {40000, 20000, 4000}, 1}});
    EXPECT_EQ(ramp.within(0, 1).stops(),
              (std::vector<RampStop>{{0, {10000, 5000, 1000}, 0.25}, {1, {20000, 10000, 2000}, 0.5}}));
    EXPECT_EQ(Ramp({{-2, kRed, 1}, {-1, kBlue, 1}}).within(0, 1).stops(),
              (std::vector<RampStop>{{0, kBlue, 1}, {1, kBlue, 1}}));
    EXPECT_EQ(Ramp({{2, kRed, 1}, {3, kBlue, 1}}).within(0, 1).stops(),
              (std::vector<RampStop>{{0, kRed, 1}, {1, kRed, 1}}));
}

} // namespace
