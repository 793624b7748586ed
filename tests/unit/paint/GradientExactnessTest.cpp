// Every painted pixel against the extended-precision account, over random gradients.
#include "easel/paint/Painter.h"
#include "tests/unit/paint/ExactGradient.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace easel;
using drawing::Spread;

constexpr double kLargestError = 0.51;

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine_);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
    bool coin() { return whole(0, 1) == 1; }
    drawing::Rgb16 color() {
        const auto channel = [&] { return static_cast<std::uint16_t>(whole(0, 65535)); };
        return {channel(), channel(), channel()};
    }
    drawing::Point point(int width, int height) { return {real(-40, width + 40), real(-40, height + 40)}; }

  private:
    std::mt19937 engine_;
};

enum class Opacity { Opaque, Mixed };

std::vector<drawing::RampStop> randomStops(Dice& dice, int count, Opacity opacity) {
    std::vector<drawing::RampStop> stops;
    for (int i = 0; i < count; ++i)
        stops.push_back({dice.real(0, 1), dice.color(), opacity == Opacity::Opaque ? 1 : dice.real(0, 1)});
    // Some jumps.
    for (int i = 1; i < count; i += 3)
        stops[static_cast<std::size_t>(i)].position = stops[static_cast<std::size_t>(i - 1)].position;
    std::stable_sort(stops.begin(), stops.end(), [](auto& a, auto& b) { return a.position < b.position; });
    return stops;
}

// A pixel so near to a jump that the last bit of the parameter decides about it may have either color.
exact::Real errorAt(const drawing::Gradient& gradient, int x, int y, std::uint32_t before,
                    std::uint32_t after, double opacity) {
    const auto t = exact::parameterAt(gradient, x + exact::Real{0.5}, y + exact::Real{0.5});
    if (!t)
        return before == after ? 0 : 255;
    exact::Real least = 1000;
    for (const exact::Real nudge : {0.0L, 1e-12L, -1e-12L}) {
        const exact::Real position = exact::wrapped(*t + nudge * (1 + std::abs(*t)), gradient.spread);
        const exact::Color color = exact::colorAt(gradient.ramp.stops(), position);
        least = std::min(least, exact::difference(exact::over(before, color, opacity), after));
    }
    return least;
}

exact::Real largestError(const drawing::Gradient& gradient, int width, int height, std::uint32_t background,
                         double opacity = 1) {
    paint::Surface surface(width, height);
    surface.clear(background);
    paint::Painter().fillAll(surface.view(), {}, &gradient, opacity);
    exact::Real largest = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            largest = std::max(largest, errorAt(gradient, x, y, background, surface.row(y)[x], opacity));
    return largest;
}

drawing::Affine randomMap(Dice& dice) {
    return drawing::Affine::translation(dice.real(-50, 50), dice.real(-50, 50)) *
           drawing::Affine::rotation(dice.real(0, 7)) *
           drawing::Affine{
               dice.real(0.3, 2), dice.real(-0.5, 0.5), dice.real(-0.5, 0.5), dice.real(0.3, 2), 0, 0};
}

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
