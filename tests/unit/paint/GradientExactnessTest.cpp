// Every painted pixel against the extended-precision account, over random gradients.
#include "tests/unit/paint/RandomGradients.h"

#include <gtest/gtest.h>

namespace {

using namespace random_gradients;

drawing::Gradient randomLinear(Dice& dice, int width, int height, int stops, Opacity opacity) {
    return {drawing::LinearGeometry{dice.point(width, height), dice.point(width, height)},
            dice.coin() ? randomMap(dice) : drawing::Affine{}, static_cast<Spread>(dice.whole(0, 2)),
            drawing::Ramp(randomStops(dice, stops, opacity))};
}

drawing::Gradient randomRadial(Dice& dice, int width, int height, int stops, Opacity opacity) {
    drawing::RadialGeometry circles{dice.point(width, height), dice.real(0, 60), dice.point(width, height),
                                    dice.real(1, 200)};
    if (dice.whole(0, 2) == 0)
        circles.focus = circles.centre;
    return {circles, dice.coin() ? randomMap(dice) : drawing::Affine{}, static_cast<Spread>(dice.whole(0, 2)),
            drawing::Ramp(randomStops(dice, stops, opacity))};
}

TEST(GradientExactness, LinearPixelsRoundTheExactColor) {
    Dice dice(1);
    for (int i = 0; i < 150; ++i) {
        const auto gradient = randomLinear(dice, 131, 23, dice.whole(1, 12), Opacity::Opaque);
        EXPECT_LE(largestError(gradient, 131, 23, 0xFF336699), kLargestError) << "gradient " << i;
    }
}

TEST(GradientExactness, LinesAlongTheAxesAreExactLikeAnyOther) {
    Dice dice(6);
    for (const auto& [start, end] : {std::pair<drawing::Point, drawing::Point>{{0, 2}, {0, 45}},
                                     {{3, 45}, {3, 2}},
                                     {{5, 7}, {60, 7}},
                                     {{60, 0}, {5, 0}}})
        for (const Opacity opacity : {Opacity::Opaque, Opacity::Mixed})
            for (const Spread spread : {Spread::Pad, Spread::Reflect, Spread::Repeat}) {
                const drawing::Gradient gradient{drawing::LinearGeometry{start, end},
                                                 {},
                                                 spread,
                                                 drawing::Ramp(randomStops(dice, 6, opacity))};
                EXPECT_LE(largestError(gradient, 70, 50, 0xFF336699), kLargestError)
                    << "from " << start.x << ", " << start.y;
            }
}

// As people draw: corners, centres and stops on a grid, where crossings fall exactly on pixels.
TEST(GradientExactness, RoundNumbersAreExactLikeAnyOther) {
    Dice dice(7);
    const auto onGrid = [&](double step, int most) { return step * dice.whole(0, most); };
    for (int i = 0; i < 400; ++i) {
        auto stops = randomStops(dice, dice.whole(2, 6), dice.coin() ? Opacity::Opaque : Opacity::Mixed);
        for (auto& stop : stops)
            stop.position = std::nearbyint(stop.position * 8) / 8;
        const auto point = [&] { return drawing::Point{onGrid(0.5, 140), onGrid(0.5, 60)}; };
        // A quarter keeps pixels off the lines beyond which no circle passes.
        const double radius = 4.25 + onGrid(1, 40);
        drawing::RadialGeometry circles{point(), onGrid(1, 4), point(), radius};
        if (i % 3 == 0)
            circles.focus = circles.centre;
        if (i % 3 == 1)
            circles = {circles.centre + drawing::Point{radius, 0}, 0, circles.centre, radius};
        const auto spread = static_cast<Spread>(dice.whole(0, 2));
        const drawing::Gradient linear{
            drawing::LinearGeometry{point(), point()}, {}, spread, drawing::Ramp(stops)};
        const drawing::Gradient radial{circles, {}, spread, drawing::Ramp(stops)};
        EXPECT_LE(largestError(linear, 70, 30, 0xFF336699), kLargestError) << "linear " << i;
        EXPECT_LE(largestError(radial, 70, 30, 0xFF336699), kLargestError) << "radial " << i;
    }
}

TEST(GradientExactness, RadialPixelsRoundTheExactColorWhereverTheStartCircleLies) {
    Dice dice(2);
    for (int i = 0; i < 300; ++i) {
        const auto gradient = randomRadial(dice, 131, 23, dice.whole(1, 12), Opacity::Opaque);
        EXPECT_LE(largestError(gradient, 131, 23, 0xFF336699), kLargestError) << "gradient " << i;
    }
}

TEST(GradientExactness, StopsWithOpacityAreComposedOverTheBackgroundAndRoundedOnce) {
    Dice dice(3);
    for (int i = 0; i < 100; ++i) {
        const auto linear = randomLinear(dice, 90, 20, dice.whole(2, 8), Opacity::Mixed);
        const auto radial = randomRadial(dice, 90, 20, dice.whole(2, 8), Opacity::Mixed);
        const double opacity = dice.real(0, 1);
        EXPECT_LE(largestError(linear, 90, 20, 0xFF204080, opacity), kLargestError) << "linear " << i;
        EXPECT_LE(largestError(radial, 90, 20, 0xFF204080, opacity), kLargestError) << "radial " << i;
        EXPECT_LE(largestError(linear, 90, 20, 0x80102030, opacity), kLargestError) << "linear " << i;
    }
}

TEST(GradientExactness, WideRowsStayExactToTheirLastPixel) {
    Dice dice(4);
    for (int i = 0; i < 30; ++i) {
        const int stops = i % 3 == 0 ? 2 : i % 3 == 1 ? 16 : 400;
        EXPECT_LE(largestError(randomLinear(dice, 3840, 3, stops, Opacity::Opaque), 3840, 3, 0),
                  kLargestError);
        EXPECT_LE(largestError(randomRadial(dice, 3840, 3, stops, Opacity::Opaque), 3840, 3, 0),
                  kLargestError);
    }
}

TEST(GradientExactness, RingsFarFromTheCentreStayExact) {
    Dice dice(5);
    for (const int stops : {2, 16, 200, 1000}) {
        const drawing::RadialGeometry circles{{1500, -900}, 100, {1920, -1080}, 4400};
        const drawing::Gradient gradient{
            circles, {}, Spread::Pad, drawing::Ramp(randomStops(dice, stops, Opacity::Opaque))};
        EXPECT_LE(largestError(gradient, 3840, 4, 0), kLargestError) << stops << " stops";
    }
}

} // namespace
