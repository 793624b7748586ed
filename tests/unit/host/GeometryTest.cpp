// Points, rectangles, lines and turns of the interface.
#include "host/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace {

using ShortPoint = TPoint<short>;
using Point = TPoint<double>;
using ShortRect = TRect<short>;
using Rect = TRect<double>;
using Line = TLine<double>;

void expectTurn(double degrees, double cos, double sin) {
    const CosSin turn(degrees);
    EXPECT_EQ(turn.cos, cos) << degrees;
    EXPECT_EQ(turn.sin, sin) << degrees;
}

} // namespace

TEST(HostCosSin, IsExactAtWholeQuarterTurns) {
    for (const double rounds : {-1080.0, -360.0, 0.0, 360.0, 720.0}) {
        expectTurn(rounds, 1, 0);
        expectTurn(rounds + 90, 0, 1);
        expectTurn(rounds + 180, -1, 0);
        expectTurn(rounds + 270, 0, -1);
    }
}

TEST(HostCosSin, IsThatOfTheAngleElsewhere) {
    const CosSin sixth(60);
    EXPECT_NEAR(sixth.cos, 0.5, 1e-15);
    EXPECT_NEAR(sixth.sin, std::sqrt(3.0) / 2, 1e-15);
    const CosSin back(-150);
    EXPECT_NEAR(back.cos, -std::sqrt(3.0) / 2, 1e-15);
    EXPECT_NEAR(back.sin, -0.5, 1e-15);
}

TEST(HostPoint, TakesTheHorizontalCoordinateFirst) {
    const Point point(3, 7);
    EXPECT_EQ(point.h, 3);
    EXPECT_EQ(point.v, 7);
    Point set;
    EXPECT_EQ(set, Point(0, 0));
    set.Set(5, 9);
    EXPECT_EQ(set.h, 5);
    EXPECT_EQ(set.v, 9);
}

TEST(HostPoint, IsConvertedCoordinateByCoordinate) {
    const ShortPoint whole(Point(3.75, -7.25));
    EXPECT_EQ(whole, ShortPoint(3, -7));
}

TEST(HostPoint, IsAddedSubtractedAndMultipliedCoordinateByCoordinate) {
    EXPECT_EQ(ShortPoint(7, 11) + ShortPoint(2, 5), ShortPoint(9, 16));
    EXPECT_EQ(ShortPoint(7, 11) - ShortPoint(2, 5), ShortPoint(5, 6));
    EXPECT_EQ(ShortPoint(7, 11) * ShortPoint(2, 5), ShortPoint(14, 55));
}

TEST(HostPoint, TurnsClockwiseOnTheScreenAboutACentre) {
    Point right(13, 20);
    right.Rotate(90, {10, 20});
    EXPECT_EQ(right, Point(10, 23));
    Point below(10, 24);
    below.Rotate(90, {10, 20});
    EXPECT_EQ(below, Point(6, 20));
    Point aslant(12, 21);
    aslant.Rotate(60, {10, 20});
    EXPECT_NEAR(aslant.h, 10 + 1 - std::sqrt(3.0) / 2, 1e-14);
    EXPECT_NEAR(aslant.v, 20 + std::sqrt(3.0) + 0.5, 1e-14);
}

TEST(HostRect, TakesTopLeftBottomRight) {
    const Rect rect(1, 2, 11, 22);
    EXPECT_EQ(rect.top, 1);
    EXPECT_EQ(rect.left, 2);
    EXPECT_EQ(rect.bottom, 11);
    EXPECT_EQ(rect.right, 22);
    EXPECT_EQ(Rect(), Rect(0, 0, 0, 0));
    EXPECT_EQ(ShortRect(Rect(1.5, 2.5, 11.5, 22.5)), ShortRect(1, 2, 11, 22));
}

TEST(HostRect, TellsItsSizeItsCornersAndItsMiddle) {
    const ShortRect rect(1, 2, 11, 24);
    EXPECT_EQ(rect.Width(), 22);
    EXPECT_EQ(rect.Height(), 10);
    EXPECT_EQ(rect.GetSize(), ShortPoint(22, 10));
    EXPECT_EQ(rect.TopLeft(), ShortPoint(2, 1));
    EXPECT_EQ(rect.TopRight(), ShortPoint(24, 1));
    EXPECT_EQ(rect.BottomRight(), ShortPoint(24, 11));
    EXPECT_EQ(rect.BottomLeft(), ShortPoint(2, 11));
    EXPECT_EQ(rect.MidPt(), ShortPoint(13, 6));
    EXPECT_EQ(Rect(1, 2, 4, 9).MidPt(), Point(5.5, 2.5));
}

TEST(HostRect, MovesItsEdgesInAndOut) {
    ShortRect rect(10, 20, 40, 80);
    rect.Inset(3, 5);
    EXPECT_EQ(rect, ShortRect(15, 23, 35, 77));
    rect.Outset(4, 7);
    EXPECT_EQ(rect, ShortRect(8, 19, 42, 81));
}

TEST(HostLine, HasTheDirectionFromStartToEnd) {
    EXPECT_EQ(Line({2, 3}, {7, 3}).Angle(), 0);
    EXPECT_EQ(Line({2, 3}, {2, 8}).Angle(), 90);
    EXPECT_EQ(Line({2, 3}, {-5, 3}).Angle(), 180);
    EXPECT_EQ(Line({2, 3}, {2, -8}).Angle(), -90);
    EXPECT_DOUBLE_EQ(Line({2, 3}, {5, 6}).Angle(), 45);
    EXPECT_DOUBLE_EQ(Line({2, 3}, {1, 2}).Angle(), -135);
    EXPECT_DOUBLE_EQ(TLine<short>({2, 3}, {1, 4}).Angle(), 135);
}

TEST(HostLine, ToTheLeftHasOneAngleWhateverTheSignOfItsZero) {
    EXPECT_EQ(Line({0, 0}, {-5, -0.0}).Angle(), 180);
    EXPECT_EQ(Line({0, -0.0}, {-5, -0.0}).Angle(), 180);
}

TEST(HostLine, OfNoLengthHasNoAngleWhateverTheSignsOfItsZeroes) {
    EXPECT_EQ(Line({0, 0}, {0, 0}).Angle(), 0);
    EXPECT_EQ(Line({0, 0}, {-0.0, -0.0}).Angle(), 0);
    EXPECT_EQ(Line({0, 0}, {-0.0, 0}).Angle(), 0);
}

TEST(HostLine, HasTheDistanceOfItsEndsAsLength) {
    EXPECT_EQ(Line({2, 3}, {5, 7}).Length(), 5);
    EXPECT_EQ(TLine<short>({2, 3}, {-10, -2}).Length(), 13);
    EXPECT_EQ(LineLength({2, 3}, {5, 7}), 5);
    EXPECT_EQ(LineLength({2, 3}, {-10, -2}), 13);
}

TEST(HostPolygon, HandsOutTheStorageItRefersTo) {
    auto* const storage =
        reinterpret_cast<FPolygon*>(std::uintptr_t{16}); // NOLINT(performance-no-int-to-ptr)
    EXPECT_EQ(CFPolygonRef(storage).Storage(), storage);
}
