// Fitting a gradient's geometry to a polygon.
#include "Gradient/model/GradientRange.h"
#include "tests/unit/gradient/Polygons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {

struct Range {
    TPoint<double> start;
    TPoint<double> end;
};

Range LinearRange(CFPolygonRef polygon, double angle) {
    Range range;
    FindLinearGradientRange(polygon, angle, range.start, range.end);
    return range;
}

// The least and the largest place of the polygon's vertices along the range, 0 being its start and 1 its
// end.
std::pair<double, double> PlacesAlong(const Range& range, CFPolygonRef polygon) {
    const TPoint<double> along = range.end - range.start;
    const double square = along.h * along.h + along.v * along.v;
    double least = std::numeric_limits<double>::infinity();
    double largest = -least;
    for (const TPoint<double>& vertex : polygon.Storage()->vertices) {
        const TPoint<double> offset = vertex - range.start;
        const double place = (offset.h * along.h + offset.v * along.v) / square;
        least = std::min(least, place);
        largest = std::max(largest, place);
    }
    return {least, largest};
}

StOwnedPolygon RectPolygon(double left, double top, double right, double bottom) {
    return StOwnedPolygon(FRectToFPoly({top, left, bottom, right}));
}

struct Radii {
    double start = -1.0;
    double end = -1.0;
};

Radii RadialRadii(CFPolygonRef polygon, TPoint<double> start, TPoint<double> end) {
    Radii radii;
    FindRadialGradientRange(polygon, start, end, radii.start, radii.end);
    return radii;
}

} // namespace

TEST(LinearRange, AtAngleZeroRunsFromTheLeftToTheRightEdgeAtMidHeight) {
    const StOwnedPolygon polygon = RectPolygon(10, 20, 110, 70);
    const Range range = LinearRange(polygon.Get(), 0.0);
    EXPECT_EQ(range.start, TPoint<double>(10, 45));
    EXPECT_EQ(range.end, TPoint<double>(110, 45));
}

TEST(LinearRange, OnASquareReachesTheExtremeCornersAlongItsDirection) {
    const StOwnedPolygon square = RectPolygon(-50, -50, 50, 50);
    for (const double angle : {15.0, 30.0, 45.0, 60.0, 75.0}) {
        // The farthest corner along a direction in a quadrant is the one in that quadrant.
        const double radians = angle * std::numbers::pi / 180.0;
        const double reach = 50.0 * (std::cos(radians) + std::sin(radians));
        const Range range = LinearRange(square.Get(), -angle);
        EXPECT_NEAR(range.end.h, reach * std::cos(radians), 1e-9) << angle;
        EXPECT_NEAR(range.end.v, reach * std::sin(radians), 1e-9) << angle;
        EXPECT_NEAR(range.start.h, -range.end.h, 1e-9) << angle;
        EXPECT_NEAR(range.start.v, -range.end.v, 1e-9) << angle;
    }
}

TEST(LinearRange, EnclosesAnyPolygonAndTouchesItAtBothEnds) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anyAngle(-720.0, 720.0);
    for (int round = 0; round < 5000; ++round) {
        const StOwnedPolygon polygon = RandomPolygon(random);
        const double angle = anyAngle(random);
        const auto [least, largest] = PlacesAlong(LinearRange(polygon.Get(), angle), polygon.Get());
        ASSERT_NEAR(least, 0.0, 1e-6) << "round " << round << ", angle " << angle;
        ASSERT_NEAR(largest, 1.0, 1e-6) << "round " << round << ", angle " << angle;
    }
}

TEST(LinearRange, RunsAlongTheLineThatWasDraggedForAnyShapeAndDirection) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> place(-500.0, 500.0);
    for (int round = 0; round < 5000; ++round) {
        const StOwnedPolygon polygon = RandomPolygon(random);
        const TLine<double> dragged({place(random), place(random)}, {place(random), place(random)});
        // The tool keeps the negated angle in single precision.
        const auto stored = static_cast<float>(-dragged.Angle());
        const Range range = LinearRange(polygon.Get(), stored);
        const TPoint<double> along = range.end - range.start;
        const TPoint<double> wanted = dragged.end - dragged.start;
        const double cross = along.h * wanted.v - along.v * wanted.h;
        const double dot = along.h * wanted.h + along.v * wanted.v;
        ASSERT_GT(dot, 0.0) << "round " << round;
        ASSERT_NEAR(cross / dot, 0.0, 1e-6) << "round " << round;
    }
}

TEST(LinearRange, LeavesThePolygonAsItWas) {
    std::mt19937 random(3);
    const StOwnedPolygon polygon = RandomPolygon(random);
    const auto before = polygon.Get().Storage()->vertices;
    LinearRange(polygon.Get(), 77.0);
    EXPECT_EQ(polygon.Get().Storage()->vertices, before);
}

TEST(LinearRange, OfAPolygonWithoutExtentIsOnePoint) {
    const StOwnedPolygon point = PolygonOf({{7, 9}, {7, 9}, {7, 9}});
    const Range range = LinearRange(point.Get(), 33.0);
    EXPECT_EQ(range.start, TPoint<double>(7, 9));
    EXPECT_EQ(range.end, TPoint<double>(7, 9));
}

TEST(RadialRange, ReachesTheFarthestCornerFromTheMiddle) {
    const StOwnedPolygon polygon = RectPolygon(0, 0, 100, 50);
    const Radii radii = RadialRadii(polygon.Get(), {50, 25}, {50, 25});
    EXPECT_EQ(radii.start, 0.0);
    EXPECT_NEAR(radii.end, std::sqrt(3125.0), 1e-12);
}

TEST(RadialRange, FromACornerReachesTheOppositeOne) {
    const StOwnedPolygon polygon = RectPolygon(0, 0, 100, 50);
    EXPECT_NEAR(RadialRadii(polygon.Get(), {0, 0}, {0, 0}).end, 111.8034, 5e-5);
}

TEST(RadialRange, DoesNotDependOnTheStartPoint) {
    const StOwnedPolygon polygon = RectPolygon(0, 0, 100, 50);
    const double expected = RadialRadii(polygon.Get(), {20, 10}, {20, 10}).end;
    EXPECT_EQ(RadialRadii(polygon.Get(), {-400, 900}, {20, 10}).end, expected);
}

TEST(RadialRange, EnclosesTheBoundsOfAnyPolygonAndTouchesThem) {
    std::mt19937 random(4);
    std::uniform_real_distribution<double> place(-3000.0, 3000.0);
    for (int round = 0; round < 5000; ++round) {
        const StOwnedPolygon polygon = RandomPolygon(random);
        const TPoint<double> centre(place(random), place(random));
        const double radius = RadialRadii(polygon.Get(), centre, centre).end;
        const TRect<double> bounds = polygon.Get().Bounds();
        // The farthest point of a rectangle: the farther edge in each direction.
        const double dh = std::max(std::abs(centre.h - bounds.left), std::abs(centre.h - bounds.right));
        const double dv = std::max(std::abs(centre.v - bounds.top), std::abs(centre.v - bounds.bottom));
        ASSERT_NEAR(radius, std::sqrt(dh * dh + dv * dv), 1e-9 * radius) << "round " << round;
    }
}
