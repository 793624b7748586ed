// Points, boxes and maps.
#include "easel/drawing/Geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

using namespace easel::drawing;

constexpr double kFar = std::numeric_limits<double>::infinity();
const double kNone = std::nan("");

void expectNear(Point p, Point meant) {
    EXPECT_NEAR(p.x, meant.x, 1e-12);
    EXPECT_NEAR(p.y, meant.y, 1e-12);
}

TEST(Geometry, PointsAreAddedAndMeasured) {
    const Point a{3, 5};
    const Point b{2, 7};
    EXPECT_EQ(a + b, (Point{5, 12}));
    EXPECT_EQ(a - b, (Point{1, -2}));
    EXPECT_EQ(a * 4, (Point{12, 20}));
    EXPECT_EQ(dot(a, b), 41);
    EXPECT_EQ(cross(a, b), 11) << "3 times 7 less 5 times 2";
    EXPECT_GT(cross({1, 0}, {0, 1}), 0) << "from the right to below is clockwise on the screen";
    EXPECT_EQ(length({3, 4}), 5);
    EXPECT_EQ(midpoint(a, b), (Point{2.5, 6}));
}

TEST(Geometry, AreFiniteIfBothCoordinatesAre) {
    EXPECT_TRUE(isFinite({1, -1}));
    EXPECT_FALSE(isFinite({kFar, 1}));
    EXPECT_FALSE(isFinite({1, -kFar}));
    EXPECT_FALSE(isFinite({1, kNone}));
}

TEST(Geometry, ADefaultBoxIsEmptyUntilAPointIsAdded) {
    Box box;
    EXPECT_TRUE(box.empty());
    EXPECT_EQ(box.width(), 0);
    EXPECT_EQ(box.height(), 0);
    EXPECT_FALSE(box.contains({0, 0}));
    EXPECT_EQ(box.grownBy(5), box);
    box.add(Point{3, 4});
    EXPECT_EQ(box, (Box{3, 4, 3, 4}));
    EXPECT_FALSE(box.empty()) << "a point is something";
    box.add(Point{1, 9});
    EXPECT_EQ(box, (Box{1, 4, 3, 9}));
    box.add(Box{0, 5, 2, 10});
    EXPECT_EQ(box, (Box{0, 4, 3, 10}));
    box.add(Box{1, 2, 7, 3});
    EXPECT_EQ(box, (Box{0, 2, 7, 10}));
    box.add(Box());
    EXPECT_EQ(box, (Box{0, 2, 7, 10}));
    EXPECT_EQ(box.width(), 7);
    EXPECT_EQ(box.height(), 8);
    EXPECT_EQ(box.centre(), (Point{3.5, 6}));
    EXPECT_EQ(box.grownBy(2), (Box{-2, 0, 9, 12}));
}

TEST(Geometry, ABoxThatIsTurnedOverInOneDirectionIsEmpty) {
    for (const Box& box : {Box{2, 0, 1, 5}, Box{0, 5, 1, 2}}) {
        EXPECT_TRUE(box.empty());
        EXPECT_EQ(box.width(), 0);
        EXPECT_EQ(box.height(), 0);
    }
}

TEST(Geometry, ABoxHoldsItsEdges) {
    const Box box{1, 2, 3, 5};
    for (const Point p : {Point{1, 3}, Point{3, 3}, Point{2, 2}, Point{2, 5}})
        EXPECT_TRUE(box.contains(p)) << p.x << ", " << p.y;
    for (const Point p : {Point{0.9, 3}, Point{3.1, 3}, Point{2, 1.9}, Point{2, 5.1}})
        EXPECT_FALSE(box.contains(p)) << p.x << ", " << p.y;
}

TEST(Geometry, BoxesOverlapFromTheEdgeOn) {
    const Box box{1, 2, 3, 5};
    for (const Box& other :
         {Box{3, 3, 9, 4}, Box{-9, 3, 1, 4}, Box{2, 5, 2, 9}, Box{2, 0, 2, 2}, Box{0, 0, 9, 9}}) {
        EXPECT_TRUE(box.overlaps(other));
        EXPECT_TRUE(other.overlaps(box));
    }
    for (const Box& other : {Box{3.1, 3, 9, 4}, Box{-9, 3, 0.9, 4}, Box{2, 5.1, 2, 9}, Box{2, 0, 2, 1.9}}) {
        EXPECT_FALSE(box.overlaps(other));
        EXPECT_FALSE(other.overlaps(box));
    }
    EXPECT_EQ(box.intersection({0, 3, 2, 9}), (Box{1, 3, 2, 5}));
    EXPECT_EQ(box.intersection({2, 0, 9, 4}), (Box{2, 2, 3, 4}));
    EXPECT_TRUE(box.intersection({4, 2, 9, 5}).empty());
}

TEST(Geometry, AMapTakesTheNumbersInTheOrderOfAnSvgMatrix) {
    const Affine map{2, 3, 5, 7, 11, 13};
    EXPECT_EQ(map({1, 0}), (Point{13, 16}));
    EXPECT_EQ(map({0, 1}), (Point{16, 20}));
    EXPECT_EQ(map({10, 100}), (Point{531, 743}));
    EXPECT_EQ(map.direction({10, 100}), (Point{520, 730}));
    EXPECT_EQ(map.determinant(), -1);
    EXPECT_EQ(Affine()({4, 5}), (Point{4, 5}));
    EXPECT_EQ(Affine::translation(3, 4)({1, 1}), (Point{4, 5}));
    EXPECT_EQ(Affine::scaling(3, 4)({1, 2}), (Point{3, 8}));
}

TEST(Geometry, AProductOfMapsAppliesTheSecondFirst) {
    const Affine one{2, 3, 5, 7, 11, 13};
    const Affine other{1, -4, 6, 2, -3, 8};
    for (const Point p : {Point{0, 0}, Point{1, 0}, Point{0, 1}, Point{3, -2}})
        EXPECT_EQ((one * other)(p), one(other(p)));
}

TEST(Geometry, AnInverseLeadsBack) {
    const Affine map{2, 3, 5, 8, 11, 13};
    for (const Point p : {Point{0, 0}, Point{1, 0}, Point{0, 1}, Point{3, -2}})
        expectNear(map.inverse()(map(p)), p);
    EXPECT_TRUE(map.invertible());
}

TEST(Geometry, AMapThatCannotBeInvertedHasTheIdentityForInverse) {
    for (const Affine& map : {Affine{1, 2, 2, 4, 0, 0}, Affine{kFar, 0, 0, 1, 0, 0},
                              Affine{1, 0, 0, 1, kFar, 0}, Affine{1, 0, 0, 1, 0, kNone}}) {
        EXPECT_FALSE(map.invertible());
        EXPECT_EQ(map.inverse(), Affine());
    }
}

TEST(Geometry, TheLargestScaleIsThatOfTheLongestDirection) {
    EXPECT_EQ(Affine::scaling(3, 0.5).largestScale(), 3);
    EXPECT_EQ(Affine::scaling(0.5, -3).largestScale(), 3);
    EXPECT_EQ(Affine::scaling(0, 0).largestScale(), 0);
    for (const Affine& map :
         {Affine{2, 3, 5, 7, 11, 13}, Affine{1, -4, 6, 2, 0, 0}, Affine{1, 0, 4, 1, 0, 0}}) {
        double longest = 0;
        for (int i = 0; i < 3600; ++i) {
            const double turn = i * 3.14159265358979 / 3600;
            longest = std::max(longest, length(map.direction({std::cos(turn), std::sin(turn)})));
        }
        EXPECT_NEAR(map.largestScale(), longest, 1e-4);
    }
}

TEST(Geometry, ARotationScalesByOneHoweverItIsRounded) {
    for (int degrees = 0; degrees < 360; ++degrees)
        EXPECT_NEAR(Affine::rotation(degrees).largestScale(), 1, 1e-7) << degrees;
}

TEST(Geometry, ARotationTurnsClockwiseOnTheScreenAndExactlyAtQuarters) {
    EXPECT_EQ(Affine::rotation(90)({1, 0}), (Point{0, 1}));
    EXPECT_EQ(Affine::rotation(90)({0, 1}), (Point{-1, 0}));
    EXPECT_EQ(Affine::rotation(180)({2, 3}), (Point{-2, -3}));
    expectNear(Affine::rotation(30)({1, 0}), {std::sqrt(0.75), 0.5});
    expectNear(Affine::rotation(30)({0, 1}), {-0.5, std::sqrt(0.75)});
}

TEST(Geometry, TheUnitsOfABoxAreSharesOfItsSides) {
    const Affine units = boxUnits({10, 20, 14, 28});
    EXPECT_EQ(units({0, 0}), (Point{10, 20}));
    EXPECT_EQ(units({1, 1}), (Point{14, 28}));
    EXPECT_EQ(units({0.5, 0.25}), (Point{12, 22}));
}

TEST(Geometry, ABoxUnderAMapHoldsAllFourCorners) {
    const Box box{1, 2, 3, 5};
    EXPECT_EQ(boxUnder(box, Affine::rotation(90)), (Box{-5, 1, -2, 3}));
    // One corner after the other is the extreme one: of x + y, x - y, and their opposites.
    EXPECT_EQ(boxUnder(box, {1, 1, 1, -1, 0, 0}), (Box{3, -4, 8, 1}));
    EXPECT_EQ(boxUnder(box, {-1, -1, -1, 1, 0, 0}), (Box{-8, -1, -3, 4}));
    EXPECT_TRUE(boxUnder(Box(), Affine::translation(1, 1)).empty());
}

} // namespace
