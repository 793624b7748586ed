// Gradient records fitted to outlines.
#include "easel/drawing/GradientFit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using namespace easel::drawing;

CGradientData record(KGradientType type, std::initializer_list<CGradientColor> stops) {
    CGradientData data;
    data.SetType(type);
    data.ColorList() = stops;
    return data;
}

constexpr RGBColor kRed{65535, 0, 0};
constexpr RGBColor kBlue{0, 0, 65535};

TEST(GradientFit, AngleZeroRunsFromLeftToRightAtMidHeight) {
    const auto fit = std::get<LinearGeometry>(fitGeometry(CGradientData(), rectanglePath({10, 20, 110, 70})));
    EXPECT_EQ(fit.start, (Point{10, 45}));
    EXPECT_EQ(fit.end, (Point{110, 45}));
}

TEST(GradientFit, StopsInsideTheRampAreCompletedAtBothEndsAndTheRecordStays) {
    const CGradientData data = record(kLinearGradient, {{kRed, 0.2}, {kBlue, 0.7}});
    const Rgb16 red{65535, 0, 0};
    const Rgb16 blue{0, 0, 65535};
    EXPECT_EQ(completeStops(data), (std::vector<RampStop>{{0, red}, {0.2, red}, {0.7, blue}, {1, blue}}));
    EXPECT_EQ(data.ColorList().size(), 2U);
}

TEST(GradientFit, ACompleteRampGetsNoStopsAndASingleStopGetsTwo) {
    EXPECT_EQ(completeStops(record(kLinearGradient, {{kRed, 0}, {kBlue, 1}})).size(), 2U);
    EXPECT_EQ(completeStops(record(kLinearGradient, {{kRed, 0.5}})).size(), 3U);
}

TEST(GradientFit, RadialGradientReachesTheFarthestCorner) {
    CGradientData data = record(kRadialGradient, {{kRed, 0}, {kBlue, 1}});
    const Path box = rectanglePath({0, 0, 100, 50});
    auto fit = std::get<RadialGeometry>(fitGeometry(data, box));
    EXPECT_EQ(fit.focus, (Point{50, 25}));
    EXPECT_EQ(fit.centre, (Point{50, 25}));
    EXPECT_EQ(fit.focusRadius, 0);
    EXPECT_NEAR(fit.radius, std::sqrt(3125.0), 1e-5);
    data.SetEnd({0, 0});
    fit = std::get<RadialGeometry>(fitGeometry(data, box));
    EXPECT_EQ(fit.centre, (Point{0, 0}));
    EXPECT_NEAR(fit.radius, std::sqrt(12500.0), 1e-5);
}

TEST(GradientFit, TheFarthestCornerIsAnyOfTheFour) {
    const Box box{10, 20, 14, 23};
    EXPECT_EQ(farthestCorner(box, {10, 20}), 5);
    EXPECT_EQ(farthestCorner(box, {14, 20}), 5);
    EXPECT_EQ(farthestCorner(box, {14, 23}), 5);
    EXPECT_EQ(farthestCorner(box, {10, 23}), 5);
    EXPECT_EQ(farthestCorner(box, {12, 21.5}), 2.5);
}

TEST(GradientFit, ARampThatReachesBeyondItsEndsIsComplete) {
    const auto stops = completeStops(record(kLinearGradient, {{kRed, -0.5}, {kBlue, 1.5}}));
    ASSERT_EQ(stops.size(), 2U);
    EXPECT_EQ(stops[0].position, -0.5);
    EXPECT_EQ(stops[1].position, 1.5);
    EXPECT_TRUE(completeStops(record(kLinearGradient, {})).empty());
}

TEST(GradientFit, BothPointsOfCirclesAreSharesOfTheBounds) {
    CGradientData data = record(kRadialGradient, {{kRed, 0}, {kBlue, 1}});
    data.SetStart({0.25, 0.5});
    data.SetEnd({0.75, 0.125});
    const auto fit = std::get<RadialGeometry>(fitGeometry(data, rectanglePath({100, 200, 140, 280})));
    EXPECT_EQ(fit.focus, (Point{110, 240}));
    EXPECT_EQ(fit.centre, (Point{130, 210}));
    EXPECT_NEAR(fit.radius, std::hypot(30.0, 70.0), 1e-5);
}

TEST(GradientFit, AnEllipseStretchesTheCirclesAboutTheEndAndLeavesALineAlone) {
    CGradientData data = record(kRadialGradient, {{kRed, 0}, {kBlue, 1}});
    data.SetStart({0.25, 0.5});
    data.SetEnd({0.75, 0.5});
    Remainder remainder;
    remainder.ellipse = Affine::scaling(2, 0.5);
    const Path outline = rectanglePath({100, 200, 140, 280});
    const Gradient gradient = fitGradient(data, &remainder, outline);
    const auto& fit = std::get<RadialGeometry>(gradient.geometry);
    EXPECT_EQ(gradient.toDrawing(fit.centre), (Point{130, 240}));
    EXPECT_EQ(gradient.toDrawing(fit.focus), (Point{110, 240}));
    // A radius to the right is twice as long in the drawing, one downwards half as long; the farthest corner
    // is 30 to the left and 40 up.
    EXPECT_NEAR(gradient.toDrawing(fit.centre + Point{fit.radius, 0}).x - 130, 2 * std::hypot(15.0, 80.0),
                1e-4);
    data.SetType(kLinearGradient);
    EXPECT_EQ(fitGradient(data, &remainder, outline).toDrawing, Affine());
}

TEST(GradientFit, OpacityIsPutOverTheColors) {
    Remainder remainder;
    remainder.opacity = {{0, 0.25}, {1, 0.75}};
    const Gradient gradient = fitGradient(record(kLinearGradient, {{kRed, 0}, {kBlue, 1}}), &remainder,
                                          rectanglePath({0, 0, 1, 1}));
    EXPECT_EQ(gradient.ramp.stops(),
              (std::vector<RampStop>{{0, {65535, 0, 0}, 0.25}, {1, {0, 0, 65535}, 0.75}}));
    EXPECT_EQ(gradient.spread, Spread::Pad);
}

TEST(GradientFit, AnyTypeOtherThanLinearIsRadial) {
    for (const int type : {0, 2, 3, -1})
        EXPECT_TRUE(std::holds_alternative<RadialGeometry>(
            fitGeometry(record(static_cast<KGradientType>(type), {{kRed, 0}}), rectanglePath({0, 0, 1, 1}))));
}

// For any angle and polygon: the line points where the angle says, and the extreme vertices lie exactly at
// its ends.
TEST(GradientFit, LinearRangeEnclosesThePolygonAndTouchesItAtBothEnds) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> coordinate(-500, 500);
    std::uniform_real_distribution<double> turn(-720, 720);
    for (int round = 0; round < 2000; ++round) {
        std::vector<Point> points;
        for (int i = 0; i < 3 + round % 7; ++i)
            points.push_back({coordinate(random), coordinate(random)});
        const double degrees = turn(random);
        const LinearGeometry line = fitLine(polygonPath(points), degrees);
        const Point along = line.end - line.start;
        const double radians = degrees * std::numbers::pi / 180;
        const Point direction{std::cos(radians), -std::sin(radians)};
        EXPECT_NEAR(dot(along, direction), length(along), 1e-7);
        double first = 1;
        double last = 0;
        for (const Point p : points) {
            const double t = dot(p - line.start, along) / dot(along, along);
            first = std::min(first, t);
            last = std::max(last, t);
        }
        EXPECT_NEAR(first, 0, 1e-9);
        EXPECT_NEAR(last, 1, 1e-9);
    }
}

TEST(GradientFit, DegenerateOutlinesAndNumbersGiveSomethingAndDoNotCrash) {
    CGradientData data;
    data.SetAngle(std::numeric_limits<float>::quiet_NaN());
    fitGradient(data, nullptr, rectanglePath({0, 0, 1, 1}));
    data.SetType(kRadialGradient);
    data.SetStart({std::numeric_limits<double>::infinity(), 0});
    fitGradient(data, nullptr, rectanglePath({3, 3, 3, 3}));
    fitGradient(CGradientData(), nullptr, Path());
}

} // namespace
