// Outlines: bounds, polygons, and which points are inside or near.
#include "easel/drawing/Path.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

using namespace easel::drawing;

double polygonArea(const std::vector<Point>& points) {
    double twice = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point a = points[i];
        const Point b = points[(i + 1) % points.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::abs(twice / 2);
}

TEST(Path, BoundsOfACurveAreThoseOfTheCurveNotOfItsControls) {
    Path path;
    path.moveTo({0, 0});
    path.cubicTo({0, 100}, {100, 100}, {100, 0});
    // The curve's height is three quarters of the controls'.
    EXPECT_EQ(path.bounds(), (Box{0, 0, 100, 75}));
}

TEST(Path, BoundsLeaveOutPointsThatAreNotFinite) {
    Path path;
    path.moveTo({1, 2});
    path.lineTo({std::numeric_limits<double>::infinity(), 5});
    path.lineTo({3, std::numeric_limits<double>::quiet_NaN()});
    path.lineTo({4, 6});
    EXPECT_EQ(path.bounds(), (Box{1, 2, 4, 6}));
}

TEST(Path, ASegmentAfterACloseStartsWhereTheSubpathBegan) {
    Path path;
    path.moveTo({1, 2});
    path.lineTo({5, 2});
    path.close();
    path.lineTo({1, 9});
    const std::vector<Contour> contours = flatten(path, 0.1);
    ASSERT_EQ(contours.size(), 2U);
    EXPECT_EQ(contours[1].points.front(), (Point{1, 2}));
    EXPECT_FALSE(contours[1].closed);
    EXPECT_FALSE(path.closed());
}

TEST(Path, ACopyIsUntouchedByChangesOfTheOther) {
    Path path;
    path.moveTo({1, 2});
    const Path moved = path;
    path.moveTo({3, 4});
    const Path replaced = path;
    path.lineTo({5, 6});
    const Path shifted = path.transformed(Affine::translation(10, 0));
    EXPECT_EQ(moved.points().front(), (Point{1, 2}));
    EXPECT_EQ(replaced.points().size(), 1u);
    EXPECT_EQ(path.points().back(), (Point{5, 6}));
    EXPECT_EQ(shifted.points().back(), (Point{15, 6}));
}

// As large pieces of memory do, its piece grows and shrinks in place.
TEST(Path, KeepsOrderWithVeryManyPoints) {
    constexpr int kSteps = 50'000;
    Path path;
    path.moveTo({0, 0});
    for (int i = 1; i < kSteps; ++i)
        if (i % 3 == 0)
            path.cubicTo({1.0 * i, 1}, {1.0 * i, 2}, {1.0 * i, 0});
        else
            path.lineTo({1.0 * i, 0});
    const Path grown = path;
    path.shrinkToFit();
    Path longer = grown;
    longer.lineTo({-1, 0});
    path.lineTo({-1, 0});
    path.shrinkToFit();
    EXPECT_EQ(path, longer);
    ASSERT_EQ(grown.verbs().size(), std::size_t{kSteps});
    std::size_t point = 1;
    for (int i = 1; i < kSteps; ++i) {
        const bool cubic = i % 3 == 0;
        ASSERT_EQ(path.verbs()[static_cast<std::size_t>(i)], cubic ? Verb::Cubic : Verb::Line) << i;
        point += cubic ? 2 : 0;
        ASSERT_EQ(path.points()[point++], (Point{1.0 * i, 0})) << i;
    }
    EXPECT_EQ(path.points().size(), point + 1);
}

TEST(Path, AMapThatMovesNothingTakesNoMemory) {
    Path path;
    path.moveTo({1, 2});
    path.lineTo({5, 6});
    EXPECT_EQ(path.transformed(Affine()).points().data(), path.points().data());
}

TEST(Path, IsMappedInItsOwnMemoryUnlessACopySharesIt) {
    const Affine map = Affine::translation(3, -1) * Affine::rotation(30) * Affine::scaling(2, 5);
    const std::vector<Point> corners = {{0, 0}, {4, 1}, {-2, 7.5}};
    const std::vector<Point> mapped = {map(corners[0]), map(corners[1]), map(corners[2])};

    Path path = polygonPath(corners);
    const Point* const memory = path.points().data();
    const Path shared = path;
    path.transform(map);
    EXPECT_EQ(path, polygonPath(mapped));
    EXPECT_EQ(shared, polygonPath(corners));

    Path alone = shared.transformed(map.inverse());
    const Point* const own = alone.points().data();
    EXPECT_NE(own, memory);
    const Path expected = alone.transformed(map);
    alone.transform(map);
    EXPECT_EQ(alone.points().data(), own);
    EXPECT_EQ(alone, expected);
}

TEST(Path, KeepsOrderHoweverLongItGrowsAndWhenItIsShrunk) {
    Path path;
    path.moveTo({0, 0});
    for (int i = 1; i < 1000; i += 4) {
        path.lineTo({1.0 * i, 0});
        path.cubicTo({1.0 * i + 1, 0}, {1.0 * i + 2, 0}, {1.0 * i + 3, 0});
    }
    path.close();
    const Path grown = path;
    path.shrinkToFit();
    EXPECT_EQ(path, grown);
    ASSERT_EQ(path.verbs().size(), 502u);
    ASSERT_EQ(path.points().size(), 1001u);
    EXPECT_EQ(path.verbs()[0], Verb::Move);
    EXPECT_EQ(path.verbs()[499], Verb::Line);
    EXPECT_EQ(path.verbs()[500], Verb::Cubic);
    EXPECT_EQ(path.verbs().back(), Verb::Close);
    for (std::size_t i = 0; i < path.points().size(); ++i)
        EXPECT_EQ(path.points()[i].x, static_cast<double>(i));
}

TEST(Path, OfSeveralMovesInARowTheLastCounts) {
    Path path;
    path.moveTo({1, 1});
    path.moveTo({2, 2});
    path.lineTo({3, 3});
    path.moveTo({4, 4});
    path.moveTo({5, 5});
    EXPECT_EQ(path.verbs().size(), 3U);
    EXPECT_EQ(path.points().size(), 3U);
    EXPECT_EQ(path.points().front(), (Point{2, 2}));
    EXPECT_EQ(path.points().back(), (Point{5, 5}));
}

TEST(Path, WithoutAMoveStartsAtTheOrigin) {
    Path line;
    line.lineTo({3, 4});
    EXPECT_EQ(line, polylinePath({{0, 0}, {3, 4}}));
    Path curve;
    curve.cubicTo({1, 0}, {2, 0}, {3, 4});
    EXPECT_EQ(curve.points().front(), (Point{0, 0}));
    EXPECT_EQ(curve.points().size(), 4U);
}

TEST(Path, ClosesOnceAndOnlyWhatThereIs) {
    Path path;
    path.close();
    EXPECT_TRUE(path.empty());
    path.lineTo({3, 4});
    path.close();
    path.close();
    EXPECT_EQ(path.verbs().size(), 3U);
}

TEST(Path, GoesOnFromTheStartOfTheSubpathThatWasClosedLast) {
    Path path;
    path.moveTo({1, 1});
    path.lineTo({2, 1});
    path.close();
    path.moveTo({5, 6});
    path.lineTo({7, 8});
    path.cubicTo({9, 9}, {10, 10}, {11, 11});
    path.lineTo({12, 12});
    path.close();
    path.cubicTo({20, 20}, {21, 21}, {22, 22});
    path.close();
    path.lineTo({30, 30});
    const std::vector<Contour> contours = flatten(path, 1);
    ASSERT_EQ(contours.size(), 4U);
    for (const std::size_t i : {1U, 2U, 3U})
        EXPECT_EQ(contours[i].points.front(), (Point{5, 6})) << i;
}

TEST(Path, BoundsOfMovesAloneAreTheirPlace) {
    Path path;
    path.moveTo({3, 4});
    EXPECT_EQ(path.bounds(), (Box{3, 4, 3, 4}));
    EXPECT_TRUE(Path().bounds().empty());
    path.lineTo({5, 6});
    path.moveTo({100, 100});
    EXPECT_EQ(path.bounds(), (Box{3, 4, 5, 6})) << "a move after lines draws nothing";
}

TEST(Path, PolygonsLeaveOutWhatHasNoLinesAndTheRepeatedFirstPoint) {
    Path path;
    path.moveTo({9, 9});
    path.close();
    path.moveTo({0, 0});
    for (const Point p : {Point{10, 0}, Point{10, 10}, Point{0, 0}})
        path.lineTo(p);
    path.close();
    path.moveTo({1, 1});
    path.lineTo({2, 2});
    path.lineTo({1, 1});
    path.moveTo({3, 3});
    const std::vector<Contour> contours = flatten(path, 1);
    ASSERT_EQ(contours.size(), 2U);
    EXPECT_EQ(contours[0].points, (std::vector<Point>{{0, 0}, {10, 0}, {10, 10}}));
    EXPECT_TRUE(contours[0].closed);
    EXPECT_EQ(contours[1].points, (std::vector<Point>{{1, 1}, {2, 2}, {1, 1}}))
        << "open, so that it comes back";
    EXPECT_FALSE(contours[1].closed);
}

TEST(Path, ALineWithoutLengthIsNearWhereItIs) {
    const Path dot = polylinePath({{5, 5}, {5, 5}});
    EXPECT_TRUE(outlineWithin(dot, {5, 7}, 2));
    EXPECT_FALSE(outlineWithin(dot, {5, 7.1}, 2));
    const Path line = polylinePath({{0, 0}, {0.5, 0}});
    EXPECT_TRUE(outlineWithin(line, {0.25, 1}, 1)) << "shorter than a unit";
    EXPECT_FALSE(outlineWithin(line, {1.5, 0}, 0.9));
}

TEST(Path, FlattenedEllipseHasItsAreaAndStaysWithinTolerance) {
    const std::vector<Contour> contours = flatten(ellipsePath({50, 40}, 30, 20), 0.01);
    ASSERT_EQ(contours.size(), 1U);
    EXPECT_TRUE(contours[0].closed);
    EXPECT_NEAR(polygonArea(contours[0].points), std::numbers::pi * 30 * 20, 2);
    for (const Point p : contours[0].points)
        EXPECT_NEAR(std::hypot((p.x - 50) / 30, (p.y - 40) / 20), 1, 3e-4);
}

TEST(Path, FinerToleranceGivesMoreLinesAndCoarserFewer) {
    const Path ellipse = ellipsePath({0, 0}, 100, 100);
    EXPECT_GT(flatten(ellipse, 0.001)[0].points.size(), 2 * flatten(ellipse, 0.1)[0].points.size());
}

TEST(Path, AHoleIsOutsideByEvenOddAndByOpposedDirections) {
    Path same = rectanglePath({0, 0, 10, 10});
    same.moveTo({3, 3});
    same.lineTo({7, 3});
    same.lineTo({7, 7});
    same.lineTo({3, 7});
    same.close();
    EXPECT_TRUE(contains(same, FillRule::NonZero, {5, 5}));
    EXPECT_FALSE(contains(same, FillRule::EvenOdd, {5, 5}));
    EXPECT_TRUE(contains(same, FillRule::EvenOdd, {1, 5}));

    Path opposed = rectanglePath({0, 0, 10, 10});
    opposed.moveTo({3, 3});
    opposed.lineTo({3, 7});
    opposed.lineTo({7, 7});
    opposed.lineTo({7, 3});
    opposed.close();
    EXPECT_FALSE(contains(opposed, FillRule::NonZero, {5, 5}));
}

TEST(Path, PointsNearACurveAreJudgedByTheCurve) {
    const Path circle = ellipsePath({0, 0}, 10, 10);
    EXPECT_TRUE(contains(circle, FillRule::NonZero, {7.05, 7.05}));
    EXPECT_FALSE(contains(circle, FillRule::NonZero, {7.1, 7.1}));
    EXPECT_TRUE(outlineWithin(circle, {0, 12.9}, 3));
    EXPECT_FALSE(outlineWithin(circle, {0, 13.1}, 3));
    EXPECT_FALSE(outlineWithin(circle, {0, 0}, 9));
}

TEST(Path, AnOpenSubpathIsFilledAsIfClosedButItsOutlineStaysOpen) {
    const Path open = polylinePath({{0, 0}, {10, 0}, {10, 10}});
    EXPECT_TRUE(contains(open, FillRule::NonZero, {8, 4}));
    EXPECT_FALSE(outlineWithin(open, {5, 5}, 1));
}

TEST(Path, ARoundedRectangleIsNeverRounderThanItsSides) {
    const Path path = roundedRectanglePath({0, 0, 10, 4}, 100, 100);
    EXPECT_EQ(path.bounds(), (Box{0, 0, 10, 4}));
    EXPECT_FALSE(contains(path, FillRule::NonZero, {0.5, 0.3}));
}

} // namespace
