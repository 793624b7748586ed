// Where colors jump: pixel positions counted by hand.
#include "easel/paint/Painter.h"

#include <gtest/gtest.h>

namespace {

using namespace easel;

constexpr drawing::Rgb16 kBlack{0, 0, 0};
constexpr drawing::Rgb16 kWhite{65535, 65535, 65535};
constexpr std::uint32_t kBlackPixel = 0xFF000000;
constexpr std::uint32_t kWhitePixel = 0xFFFFFFFF;

drawing::Ramp jumpAt(double position) {
    return drawing::Ramp({{0, kBlack}, {position, kBlack}, {position, kWhite}, {1, kWhite}});
}

// The first white pixel of a row; the pixels before it must be black and those after it white.
int jumpIn(const std::uint32_t* row, int width) {
    int x = 0;
    while (x < width && row[x] == kBlackPixel)
        ++x;
    for (int rest = x; rest < width; ++rest)
        EXPECT_EQ(row[rest], kWhitePixel) << "pixel " << rest;
    return x;
}

int linearJump(double position, drawing::Point start, drawing::Point end, int width) {
    const drawing::Gradient gradient{
        drawing::LinearGeometry{start, end}, {}, drawing::Spread::Pad, jumpAt(position)};
    paint::Surface surface(width, 1);
    paint::Painter().fillAll(surface.view(), {}, &gradient);
    return jumpIn(surface.row(0), width);
}

TEST(HardStop, FallsOnTheExactPixelOfAWideRow) {
    // Pixel x has its centre at x + 0.5 and parameter (x + 0.5) / 3840.
    EXPECT_EQ(linearJump(0.5, {0, 0}, {3840, 0}, 3840), 1920);
    EXPECT_EQ(linearJump(1000.0 / 3840, {0, 0}, {3840, 0}, 3840), 1000);
    EXPECT_EQ(linearJump(3839.4 / 3840, {0, 0}, {3840, 0}, 3840), 3839);
    EXPECT_EQ(linearJump(3839.6 / 3840, {0, 0}, {3840, 0}, 3840), 3840);
    EXPECT_EQ(linearJump(0.4 / 3840, {0, 0}, {3840, 0}, 3840), 0);
    EXPECT_EQ(linearJump(0.6 / 3840, {0, 0}, {3840, 0}, 3840), 1);
}

TEST(HardStop, EveryPositionOfAWideRowIsHit) {
    for (int x = 1; x < 3840; x += 7) {
        EXPECT_EQ(linearJump((x + 0.499) / 3840, {0, 0}, {3840, 0}, 3840), x);
        EXPECT_EQ(linearJump((x + 0.501) / 3840, {0, 0}, {3840, 0}, 3840), x + 1);
    }
}

TEST(HardStop, APixelCentreExactlyOnTheStopHasTheLaterColor) {
    EXPECT_EQ(linearJump(0.5, {0.5, 0}, {100.5, 0}, 101), 50);
    EXPECT_EQ(linearJump(0.25, {0.5, 0}, {100.5, 0}, 101), 25);
    // (50.5 - 10) / 100 is 0.405.
    EXPECT_EQ(linearJump(0.405, {10, 0}, {110, 0}, 120), 50);
}

TEST(HardStop, RunsBackwardsToo) {
    // Parameter 1 - (x + 0.5) / 10: pixel 4 has 0.55, pixel 5 has 0.45; the later color lies to the left.
    const drawing::Gradient gradient{
        drawing::LinearGeometry{{10, 0}, {0, 0}}, {}, drawing::Spread::Pad, jumpAt(0.5)};
    paint::Surface surface(10, 1);
    paint::Painter().fillAll(surface.view(), {}, &gradient);
    EXPECT_EQ(surface.row(0)[4], kWhitePixel);
    EXPECT_EQ(surface.row(0)[5], kBlackPixel);
}

TEST(HardStop, FollowsTheSlopeOfAnObliqueGradient) {
    // Along (1, 1): parameter (x + y + 1) / 20 is at least 0.5 from x + y = 9 on.
    const drawing::Gradient gradient{
        drawing::LinearGeometry{{0, 0}, {10, 10}}, {}, drawing::Spread::Pad, jumpAt(0.5)};
    paint::Surface surface(12, 10);
    paint::Painter().fillAll(surface.view(), {}, &gradient);
    for (int y = 0; y < 10; ++y)
        EXPECT_EQ(jumpIn(surface.row(y), 12), 9 - y) << "row " << y;
}

TEST(HardStop, RingsOfARadialGradientFallOnTheirPixels) {
    // Centre on a pixel centre, radius 1000, jump at half: |x - 1500| >= 500 is white on the centre's row;
    // one row further the half-chord is sqrt(500^2 - 1), just below 500.
    const drawing::RadialGeometry circles{{1500.5, 1.5}, 0, {1500.5, 1.5}, 1000};
    const drawing::Gradient gradient{circles, {}, drawing::Spread::Pad, jumpAt(0.5)};
    paint::Surface surface(3840, 3);
    paint::Painter().fillAll(surface.view(), {}, &gradient);
    for (int y = 0; y < 3; ++y) {
        for (const auto& [x, pixel] : {std::pair{1000, kWhitePixel},
                                       {1001, kBlackPixel},
                                       {1500, kBlackPixel},
                                       {1999, kBlackPixel},
                                       {2000, kWhitePixel},
                                       {3839, kWhitePixel},
                                       {0, kWhitePixel}})
            EXPECT_EQ(surface.row(y)[x], pixel) << x << "," << y;
    }
}

// Black on white, opaque before the jump and clear after it, or the other way round: what jumps is the
// opacity.
TEST(HardStop, OpacityJumpsOnTheExactPixel) {
    for (int at = 1; at < 99; ++at) {
        for (const double before : {0.0, 1.0}) {
            const double position = (at + 0.499) / 100;
            const drawing::Ramp ramp(
                {{0, kBlack, before}, {position, kBlack, before}, {position, kBlack, 1 - before}});
            const drawing::RadialGeometry circles{{0, 0.5}, 0, {0, 0.5}, 100};
            for (const drawing::Gradient& gradient :
                 {drawing::Gradient{
                      drawing::LinearGeometry{{0, 0}, {100, 0}}, {}, drawing::Spread::Pad, ramp},
                  drawing::Gradient{circles, {1, 0, 0.7, -0.2, -0.35, 0.6}, drawing::Spread::Pad, ramp}}) {
                paint::Surface surface(100, 1);
                surface.clear(kWhitePixel);
                paint::Painter().fillAll(surface.view(), {}, &gradient);
                for (int x = 0; x < 100; ++x)
                    EXPECT_EQ(surface.row(0)[x], (x < at) == (before == 1) ? kBlackPixel : kWhitePixel)
                        << x << " of a jump at " << at;
            }
        }
    }
}

TEST(HardStop, OfStopsAtOnePositionOnlyTheFirstAndLastShow) {
    const drawing::Rgb16 red{65535, 0, 0};
    const drawing::Gradient gradient{
        drawing::LinearGeometry{{0, 0}, {10, 0}},
        {},
        drawing::Spread::Pad,
        drawing::Ramp({{0, kBlack}, {0.5, kBlack}, {0.5, red}, {0.5, kWhite}, {1, kWhite}})};
    paint::Surface surface(10, 1);
    paint::Painter().fillAll(surface.view(), {}, &gradient);
    EXPECT_EQ(jumpIn(surface.row(0), 10), 5);
}

} // namespace
