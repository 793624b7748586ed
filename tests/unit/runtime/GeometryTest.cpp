// Polygons of the host interface and the constraint of directions.
#include "host/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

// The angle between the line and the nearest direction that is allowed.
double strayOf(TPoint<double> anchor, TPoint<double> point) {
    return std::remainder(TLine<double>(anchor, point).Angle(), 15.0);
}

TEST(Restrict, LeavesOnlyMultiplesOfFifteenDegrees) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> anywhere(-500, 500);
    for (int i = 0; i < 2000; ++i) {
        const TPoint<double> anchor(anywhere(random), anywhere(random));
        TPoint<double> point(anywhere(random), anywhere(random));
        const TPoint<double> before = point;
        Restrict(anchor, point);
        EXPECT_NEAR(strayOf(anchor, point), 0, 1e-9);
        const double turned = TLine<double>(anchor, point).Angle() - TLine<double>(anchor, before).Angle();
        EXPECT_LE(std::abs(std::remainder(turned, 360.0)), 7.5 + 1e-9);
        // The nearest point of the allowed line is no farther from the anchor than the mouse.
        EXPECT_LE(LineLength(anchor, point), LineLength(anchor, before) + 1e-9);
    }
}

TEST(Restrict, IsExactOnAxesAndDiagonals) {
    const TPoint<double> anchor(10, 20);
    TPoint<double> across(110, 22);
    Restrict(anchor, across);
    EXPECT_EQ(across, TPoint<double>(110, 20));
    TPoint<double> up(11, -80);
    Restrict(anchor, up);
    EXPECT_EQ(up, TPoint<double>(10, -80));
    TPoint<double> diagonal(110, 121);
    Restrict(anchor, diagonal);
    EXPECT_EQ(diagonal.h - anchor.h, diagonal.v - anchor.v);
    EXPECT_NEAR(diagonal.h, 110.5, 1e-9);
    for (const TPoint<double> way : {TPoint<double>(-100, 101), {-100, -101}, {100, -101}}) {
        TPoint<double> other = way;
        Restrict({0, 0}, other);
        EXPECT_EQ(std::abs(other.h), std::abs(other.v));
        EXPECT_NEAR(other.h, std::copysign(100.5, way.h), 1e-9);
    }
}

TEST(Restrict, LeavesTheAnchorItselfAndPointsThatAreNotFinite) {
    TPoint<double> same(3, 4);
    Restrict({3, 4}, same);
    EXPECT_EQ(same, TPoint<double>(3, 4));
    TPoint<double> nowhere(std::numeric_limits<double>::quiet_NaN(), 4);
    Restrict({3, 4}, nowhere);
    EXPECT_TRUE(std::isnan(nowhere.h));
    EXPECT_EQ(nowhere.v, 4);
    constexpr double kFar = std::numeric_limits<double>::infinity();
    TPoint<double> away(kFar, 7);
    Restrict({3, 4}, away);
    EXPECT_EQ(away, TPoint<double>(kFar, 7));
}

TEST(Polygon, OfARectangleHasItsBounds) {
    const CFPolygonRef polygon = FRectToFPoly({20, 10, 70, 110});
    EXPECT_EQ(polygon.Bounds(), TRect<double>(20, 10, 70, 110));
    KillFPoly(polygon);
}

TEST(Polygon, DuplicateIsItsOwnAndASecondReferenceIsNot) {
    const CFPolygonRef polygon = FRectToFPoly({0, 0, 50, 100});
    const CFPolygonRef second(polygon, false);
    const CFPolygonRef duplicate(polygon, true);
    RotateFPoly(polygon, 90, {50, 25});
    EXPECT_EQ(second.Bounds(), TRect<double>(-25, 25, 75, 75));
    EXPECT_EQ(duplicate.Bounds(), TRect<double>(0, 0, 50, 100));
    KillFPoly(duplicate);
    KillFPoly(polygon);
}

TEST(Polygon, TurnsAsPointsDo) {
    const CFPolygonRef polygon = FRectToFPoly({10, 20, 10, 20});
    TPoint<double> point(20, 10);
    RotateFPoly(polygon, 33, {1, 2});
    point.Rotate(33, {1, 2});
    EXPECT_EQ(polygon.Bounds(), TRect<double>(point.v, point.h, point.v, point.h));
    KillFPoly(polygon);
}

} // namespace
