// Which color stop a place on the ramp means.
#include "Gradient/editor/StopSearch.h"
#include "tests/unit/gradient/Records.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr short kWidths[] = {1,   7,   10,  49,  100, 101, 188, 200, 211,  256,
                             300, 333, 400, 412, 500, 640, 777, 999, 1000, 4000};

double Narrowed(double position) {
    return static_cast<double>(static_cast<float>(position));
}

// Whether a click `pixels` from the left end of the ramp means a stop at `stop`.
bool IsMeant(double stop, int pixels, short width) {
    auto colors = ColorsOf({{stop, kBlack}});
    return FindStopNear(colors, static_cast<double>(pixels) / width, width) != colors.end();
}

} // namespace

TEST(StopSearch, TenPixelsFromAStopIsNearAndElevenIsNotAtEveryPixelOfEveryWidth) {
    for (const short width : kWidths) {
        for (int pixel = 0; pixel <= width; ++pixel) {
            const double position = static_cast<double>(pixel) / width;
            // As a stop that was added has it, and as one that was dragged or typed.
            for (const double stop : {position, Narrowed(position)}) {
                ASSERT_TRUE(IsMeant(stop, pixel + 10, width)) << pixel << '/' << width;
                ASSERT_TRUE(IsMeant(stop, pixel - 10, width)) << pixel << '/' << width;
                ASSERT_FALSE(IsMeant(stop, pixel + 11, width)) << pixel << '/' << width;
                ASSERT_FALSE(IsMeant(stop, pixel - 11, width)) << pixel << '/' << width;
            }
        }
    }
}

TEST(StopSearch, TheLeastBitBeyondTenPixelsIsTooFarEvenOnTheWidestRamp) {
    constexpr short kWidest = 32767;
    EXPECT_TRUE(IsMeant(10.001 / kWidest, 0, kWidest));
    EXPECT_FALSE(IsMeant(10.003 / kWidest, 0, kWidest));
}

TEST(StopSearch, OfTwoStopsEquallyNearTheEarlierOneIsMeantAtEveryPixel) {
    constexpr short kWidth = 400;
    for (int middle = 10; middle <= kWidth - 10; ++middle) {
        for (int distance = 0; distance <= 10; ++distance) {
            const double low = static_cast<double>(middle - distance) / kWidth;
            const double high = static_cast<double>(middle + distance) / kWidth;
            for (const auto& [first, second] : {std::pair{low, high},
                                                {Narrowed(low), Narrowed(high)},
                                                {low, Narrowed(high)},
                                                {Narrowed(low), high}}) {
                auto colors = ColorsOf({{first, kRed}, {second, kBlue}});
                ASSERT_EQ(FindStopNear(colors, static_cast<double>(middle) / kWidth, kWidth), colors.begin())
                    << middle << " and " << distance;
            }
        }
    }
}

TEST(StopSearch, TheNearestOfManyIsMeantWhereverItStandsInTheList) {
    auto colors = ColorsOf({{0.48, kBlack}, {0.49, kWhite}, {0.505, kRed}, {0.52, kGreen}});
    EXPECT_EQ(FindStopNear(colors, 0.5, 400)->ColorRGB(), kRed);
    colors.reverse();
    EXPECT_EQ(FindStopNear(colors, 0.5, 400)->ColorRGB(), kRed);
}

TEST(StopSearch, APlaceBeyondTheRampCanMeanTheStopAtItsEnd) {
    EXPECT_TRUE(IsMeant(0.0, -6, 400));
    EXPECT_TRUE(IsMeant(1.0, 406, 400));
    EXPECT_FALSE(IsMeant(0.05, -6, 400));
}
