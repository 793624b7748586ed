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
