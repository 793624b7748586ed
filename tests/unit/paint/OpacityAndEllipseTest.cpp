// Ellipses of every shape and ramps with opacity against the extended-precision account.
#include "tests/unit/paint/RandomGradients.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace random_gradients;

constexpr std::uint32_t kBackgrounds[] = {0xFF336699, 0xFFFFFFFF, 0xFF000000, 0x80102030, 0};

// From a circle about the origin: flattened up to `flattest`, skewed, turned, and mirrored as often as not.
drawing::Affine randomEllipse(Dice& dice, drawing::Point centre, double flattest) {
    const double wide = dice.real(0.5, 2);
    const double flat = wide / std::pow(flattest, dice.real(0, 1)) * (dice.coin() ? 1 : -1);
    return drawing::Affine::translation(centre.x, centre.y) * drawing::Affine::rotation(dice.real(0, 7)) *
           drawing::Affine{wide, 0, dice.real(-1, 1) * flat, flat, 0, 0};
}

// `depth` is how far out the focus lies, in parts of what keeps the start circle inside.
drawing::Gradient ellipse(Dice& dice, double flattest, double depth, int stops, Opacity opacity) {
    const double radius = dice.real(20, 150);
    const double focusRadius = dice.coin() ? 0 : dice.real(0, radius / 2);
    const double angle = dice.real(0, 7);
    const drawing::Point focus =
        drawing::Point{std::cos(angle), std::sin(angle)} * (depth * (radius - focusRadius));
    return {drawing::RadialGeometry{focus, focusRadius, {}, radius},
            randomEllipse(dice, dice.point(131, 23), flattest), static_cast<Spread>(dice.whole(0, 2)),
            drawing::Ramp(randomStops(dice, stops, opacity))};
}

// Opacity from 0 to 1 and back, with jumps of the color, of the opacity, and of both.
drawing::Ramp opacityRamp(Dice& dice) {
    std::vector<drawing::RampStop> stops;
    for (const auto& [position, opacity] : {std::pair{0.0, 0.0},
                                            {0.2, 1.0},
                                            {0.35, 1.0},
                                            {0.35, 0.0},
                                            {0.5, 0.0},
                                            {0.5, 1.0},
                                            {0.6, 1.0},
                                            {0.6, 1.0},
                                            {0.8, 0.3},
                                            {0.8, 0.7},
                                            {1.0, 0.0}})
        stops.push_back({position, dice.color(), opacity});
    return drawing::Ramp(std::move(stops));
}

TEST(OpacityAndEllipses, EllipsesOfEveryShapeAreExact) {
    Dice dice(21);
    for (int i = 0; i < 200; ++i) {
        const double depth = i % 2 == 0 ? 0 : dice.real(0, 0.98);
        for (const Opacity opacity : {Opacity::Opaque, Opacity::Mixed}) {
            const auto gradient = ellipse(dice, 1000, depth, dice.whole(2, 9), opacity);
            EXPECT_LE(largestError(gradient, 131, 23, 0xFF336699), kLargestError) << "ellipse " << i;
        }
    }
}

TEST(OpacityAndEllipses, AFocusNearTheRimIsExact) {
    Dice dice(22);
    for (int i = 0; i < 100; ++i) {
        // Nearer still, the parameter itself is not known well enough in double precision.
        const double depth = 1 - std::pow(10, dice.real(-4, -2));
        for (const Opacity opacity : {Opacity::Opaque, Opacity::Mixed}) {
            const auto gradient = ellipse(dice, 20, depth, dice.whole(2, 5), opacity);
            EXPECT_LE(largestError(gradient, 131, 23, 0xFF336699), kLargestError) << "ellipse " << i;
        }
    }
}

TEST(OpacityAndEllipses, RampsWithOpacityAreExactOnEveryBackground) {
    Dice dice(23);
    for (int i = 0; i < 40; ++i) {
        auto line = drawing::LinearGeometry{dice.point(150, 40), dice.point(150, 40)};
        const drawing::Gradient linear{line, {}, static_cast<Spread>(i % 3), opacityRamp(dice)};
        drawing::Gradient radial = ellipse(dice, 10, dice.real(0, 0.9), 2, Opacity::Opaque);
        radial.ramp = opacityRamp(dice);
        const double opacity = dice.coin() ? 1 : dice.real(0, 1);
        for (const std::uint32_t background : kBackgrounds) {
            EXPECT_LE(largestError(linear, 131, 23, background, opacity), kLargestError) << "linear " << i;
            EXPECT_LE(largestError(radial, 131, 23, background, opacity), kLargestError) << "radial " << i;
        }
    }
}

TEST(OpacityAndEllipses, WideRowsWithOpacityStayExactToTheirLastPixel) {
    Dice dice(24);
    for (int i = 0; i < 10; ++i) {
        const int stops = i % 3 == 0 ? 2 : i % 3 == 1 ? 16 : 400;
        const drawing::Ramp ramp(randomStops(dice, stops, Opacity::Mixed));
        const drawing::Gradient linear{
            drawing::LinearGeometry{dice.point(3840, 3), dice.point(3840, 3)}, {}, Spread::Pad, ramp};
        const drawing::Gradient radial{
            drawing::RadialGeometry{{1500, -900}, 100, {1920, -1080}, 4400}, {}, Spread::Pad, ramp};
        EXPECT_LE(largestError(linear, 3840, 3, 0xFF204080), kLargestError) << "linear " << i;
        EXPECT_LE(largestError(radial, 3840, 3, 0xFF204080), kLargestError) << "radial " << i;
    }
}

// A color of premultiplied pixels never exceeds their alpha.
TEST(OpacityAndEllipses, PixelsStayPremultiplied) {
    Dice dice(25);
    for (int i = 0; i < 60; ++i) {
        std::vector<drawing::RampStop> stops = randomStops(dice, 4, Opacity::Mixed);
        for (auto& stop : stops)
            (dice.coin() ? stop.color.red : stop.color.green) = 65535;
        const drawing::Ramp ramp(stops);
        for (const drawing::Gradient& gradient :
             {drawing::Gradient{drawing::LinearGeometry{{3, 2}, {290, 9}}, {}, Spread::Pad, ramp},
              drawing::Gradient{drawing::RadialGeometry{{30, 2}, 0, {30, 2}, 250}, {}, Spread::Pad, ramp}}) {
            paint::Surface surface(300, 10);
            paint::Painter().fillAll(surface.view(), {}, &gradient);
            for (int y = 0; y < 10; ++y)
                for (int x = 0; x < 300; ++x)
                    for (const unsigned shift : {0U, 8U, 16U})
                        ASSERT_LE(surface.row(y)[x] >> shift & 0xFF, surface.row(y)[x] >> 24)
                            << x << "," << y;
        }
    }
}

} // namespace
