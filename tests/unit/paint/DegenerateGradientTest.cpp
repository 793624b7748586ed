// Gradients and shapes without extent, with numbers that are none, with too few or too many stops.
#include "easel/paint/Painter.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace easel;
using drawing::LinearGeometry;
using drawing::RadialGeometry;
using drawing::Spread;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr drawing::Rgb16 kRed{65535, 0, 0};
constexpr drawing::Rgb16 kGreen{0, 65535, 0};
constexpr drawing::Rgb16 kBlue{0, 0, 65535};
constexpr std::uint32_t kRedPixel = 0xFFFF0000;
constexpr std::uint32_t kGreenPixel = 0xFF00FF00;
constexpr std::uint32_t kBluePixel = 0xFF0000FF;

paint::Surface painted(const drawing::Gradient& gradient, int width = 40, int height = 10) {
    paint::Surface surface(width, height);
    paint::Painter().fillAll(surface.view(), {}, &gradient);
    return surface;
}

void expectPlain(const drawing::Gradient& gradient, std::uint32_t pixel) {
    const paint::Surface surface = painted(gradient);
    for (int y = 0; y < surface.height(); ++y)
        for (int x = 0; x < surface.width(); ++x)
            ASSERT_EQ(surface.row(y)[x], pixel) << x << "," << y;
}

drawing::Ramp redToBlue() {
    return drawing::Ramp({{0, kRed}, {1, kBlue}});
}

TEST(DegenerateGradient, WithoutLengthShowsTheLastColor) {
    expectPlain({LinearGeometry{{5, 5}, {5, 5}}, {}, Spread::Pad, redToBlue()}, kBluePixel);
    expectPlain({RadialGeometry{{5, 5}, 0, {5, 5}, 0}, {}, Spread::Pad, redToBlue()}, kBluePixel);
    expectPlain({RadialGeometry{{5, 5}, 3, {5, 5}, 3}, {}, Spread::Repeat, redToBlue()}, kBluePixel);
    expectPlain({LinearGeometry{{0, 0}, {9, 0}}, {0, 0, 0, 0, 0, 0}, Spread::Pad, redToBlue()}, kBluePixel);
}

TEST(DegenerateGradient, WithNumbersThatAreNoneShowsTheLastColor) {
    for (const double bad : {kNaN, kInfinity, -kInfinity, 1e300}) {
        expectPlain({LinearGeometry{{bad, 0}, {10, 0}}, {}, Spread::Pad, redToBlue()}, kBluePixel);
        expectPlain({LinearGeometry{{0, 0}, {10, bad}}, {}, Spread::Reflect, redToBlue()}, kBluePixel);
        expectPlain({RadialGeometry{{bad, 0}, 0, {10, 0}, 10}, {}, Spread::Pad, redToBlue()}, kBluePixel);
        expectPlain({LinearGeometry{{0, 0}, {10, 0}}, {bad, 0, 0, bad, 0, 0}, Spread::Pad, redToBlue()},
                    kBluePixel);
    }
}

TEST(DegenerateGradient, OfHugeOrTinyExtentIsDrawnWithoutHarm) {
    for (const double size : {1e-300, 1e-12, 1e-3, 1e6, 1e12, 1e150}) {
        for (const Spread spread : {Spread::Pad, Spread::Reflect, Spread::Repeat}) {
            painted({LinearGeometry{{3, 3}, {3 + size, 3 + size}}, {}, spread, redToBlue()});
            painted({RadialGeometry{{3, 3}, 0, {3 + size / 2, 3}, size}, {}, spread, redToBlue()});
            painted({RadialGeometry{{3, 3}, size, {3 + size * 3, 3}, size}, {}, spread, redToBlue()});
        }
    }
}

TEST(DegenerateGradient, StopsAtNoPositionAreLeftOut) {
    const drawing::Ramp ramp({{kNaN, kGreen}, {0, kRed}, {kNaN, kGreen}, {1, kBlue}});
    ASSERT_EQ(ramp.stops().size(), 2U);
    EXPECT_EQ(ramp.stops()[0].color, kRed);
    EXPECT_EQ(ramp.stops()[1].color, kBlue);
    expectPlain(
        {LinearGeometry{{0, 0}, {9, 0}}, {}, Spread::Pad, drawing::Ramp({{kNaN, kGreen}, {kNaN, kRed}})},
        kGreenPixel);
}

TEST(DegenerateGradient, StopsAtInfinityAreNeverReached) {
    const drawing::Ramp ramp({{-kInfinity, kBlue}, {0, kRed}, {0.5, kGreen}, {kInfinity, kBlue}});
    const paint::Surface surface = painted({LinearGeometry{{10, 0}, {30, 0}}, {}, Spread::Pad, ramp});
    EXPECT_EQ(surface.row(0)[0], kRedPixel);
    EXPECT_EQ(surface.row(0)[39], kGreenPixel);
}

TEST(DegenerateGradient, WithOneStopIsPlainAndWithNoneIsInvisible) {
    expectPlain({LinearGeometry{{0, 0}, {9, 0}}, {}, Spread::Pad, drawing::Ramp({{0.4, kGreen}})},
                kGreenPixel);
    expectPlain({RadialGeometry{{0, 0}, 0, {9, 0}, 20}, {}, Spread::Repeat, drawing::Ramp({{0.4, kGreen}})},
                kGreenPixel);
    expectPlain({LinearGeometry{{0, 0}, {9, 0}}, {}, Spread::Pad, drawing::Ramp()}, 0);
}

TEST(DegenerateGradient, StopsOutsideTheRampCountAsTheyAre) {
    // From -1 (red) to 3 (blue) over 10 pixels per unit: halfway, at 1, the pixel about x = 10 is half and
    // half.
    const paint::Surface surface =
        painted({LinearGeometry{{0, 0}, {10, 0}}, {}, Spread::Pad, drawing::Ramp({{-1, kRed}, {3, kBlue}})});
    // Pixel 9 has parameter 0.95, 2.05 / 4 of red: 130.69; blue 124.31.
    EXPECT_EQ(surface.row(0)[9], 0xFF83007CU);
    EXPECT_EQ(surface.row(0)[35], kBluePixel);
}

TEST(DegenerateGradient, NothingIsPaintedWhereNoCirclePasses) {
    // Circles of radius 5 moving right: nothing above or below the strip they sweep.
    const paint::Surface surface =
        painted({RadialGeometry{{5, 10}, 5, {30, 10}, 5}, {}, Spread::Pad, redToBlue()}, 40, 20);
    for (int x = 0; x < 40; ++x) {
        EXPECT_EQ(surface.row(2)[x], 0U);
        EXPECT_EQ(surface.row(17)[x], 0U);
        EXPECT_NE(surface.row(10)[x], 0U);
    }
}

TEST(DegenerateGradient, ShapesWithNumbersThatAreNoneArePaintedWithoutThosePoints) {
    drawing::Path path;
    path.moveTo({2, 2});
    path.lineTo({kNaN, 5});
    path.lineTo({12, 2});
    path.lineTo({12, 8});
    path.lineTo({5, kInfinity});
    path.lineTo({2, 8});
    path.close();
    paint::Surface surface(20, 10);
    paint::Painter().fill(surface.view(), path, drawing::FillRule::NonZero, {}, drawing::ColorPaint{kRed, 1});
    EXPECT_EQ(surface.row(4)[7], kRedPixel);
    EXPECT_EQ(surface.row(4)[15], 0U);
}

TEST(DegenerateGradient, ShapesFarLargerThanTheSurfaceArePaintedWithoutHarm) {
    for (const double size : {1e5, 1e9, 1e18, 1e300}) {
        drawing::Path path =
            drawing::polygonPath({{-size, -size}, {size, -size / 3}, {size / 7, size}, {-size, size}});
        paint::Surface surface(20, 10);
        paint::Painter().fill(surface.view(), path, drawing::FillRule::NonZero, {},
                              drawing::ColorPaint{kRed, 1});
        EXPECT_EQ(surface.row(5)[5], kRedPixel) << size;
    }
}

TEST(DegenerateGradient, EmptySurfacesAndShapesAreNoTrouble) {
    paint::Surface none(0, 0);
    paint::Painter painter;
    painter.fill(none.view(), drawing::ellipsePath({0, 0}, 5, 5), drawing::FillRule::NonZero, {},
                 drawing::ColorPaint{kRed, 1});
    painter.fillAll(none.view(), {}, drawing::ColorPaint{kRed, 1});
    paint::Surface surface(5, 5);
    painter.fill(surface.view(), drawing::Path(), drawing::FillRule::NonZero, {},
                 drawing::ColorPaint{kRed, 1});
    EXPECT_EQ(surface.row(2)[2], 0U);
}

} // namespace
