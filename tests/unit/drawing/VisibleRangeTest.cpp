// Which parameters of a radial gradient a shape shows.
#include "easel/drawing/VisibleRange.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace easel::drawing;

constexpr RadialGeometry kCircle{{0, 0}, 0, {0, 0}, 10};

GradientFrame filled(const Path& outline) {
    return {outline, FillRule::NonZero};
}

void expectRange(const ParameterRange& range, double low, double high) {
    EXPECT_NEAR(range.low, low, 1e-3);
    EXPECT_NEAR(range.high, high, 1e-3);
}

TEST(VisibleRange, BeginsWithTheFocusWhereTheShapeHoldsIt) {
    expectRange(visibleRange(kCircle, {}, filled(rectanglePath({-2, -3, 4, 3}))), 0, 0.5);
    expectRange(visibleRange(kCircle, {}, filled(ellipsePath({0, 0}, 25, 20))), 0, 2.5);
}

TEST(VisibleRange, BeginsWithTheNearestEdgeElsewhere) {
    expectRange(visibleRange(kCircle, {}, filled(rectanglePath({3, -1, 4, 7}))), 0.3, std::sqrt(0.65));
    expectRange(visibleRange(kCircle, {}, filled(rectanglePath({-7, 2, 4, 4}))), 0.2, std::sqrt(0.65));
    // Of an open outline a fill closes the last gap, which a stroke leaves.
    const Path open = polylinePath({{3, -4}, {9, -4}, {9, 4}, {3, 4}});
    expectRange(visibleRange(kCircle, {}, filled(open)), 0.3, std::sqrt(0.97));
    expectRange(visibleRange(kCircle, {}, {open, std::nullopt}), 0.5, std::sqrt(0.97));
}

TEST(VisibleRange, IsThatOfTheCirclesBeforeTheyAreStretched) {
    expectRange(visibleRange(kCircle, Affine::scaling(2, 1), filled(rectanglePath({6, -1, 8, 1}))), 0.3,
                std::sqrt(0.17));
}

TEST(VisibleRange, IsTheSameForAShapeMuchSmallerThanAUnit) {
    expectRange(visibleRange({{0, 0}, 0, {0, 0}, 0.1}, {}, filled(rectanglePath({0.03, -0.01, 0.04, 0.07}))),
                0.3, std::sqrt(0.65));
}

TEST(VisibleRange, FollowsCurvesBetweenTheirEnds) {
    // The nearest and the farthest point of a circle in the direction of its middle, off the ends of its
    // curves.
    const double away = std::hypot(30.0, 30.0);
    expectRange(visibleRange({{0, 0}, 0, {0, 0}, 100}, {}, filled(ellipsePath({30, 30}, 10, 10))),
                (away - 10) / 100, (away + 10) / 100);
}

TEST(VisibleRange, FollowsCirclesThatMoveWhileTheyGrow) {
    // Along the axis the circles that begin at (-5, 0) and end around the origin reach k 15 to the right.
    const RadialGeometry moving{{-5, 0}, 0, {0, 0}, 10};
    expectRange(visibleRange(moving, {}, {polylinePath({{1, 0}, {7, 0}}), std::nullopt}), 0.4, 0.8);
    expectRange(visibleRange(moving, {}, {polylinePath({{-7, 0}, {-9, 0}}), std::nullopt}), 0.4, 0.8);
}

TEST(VisibleRange, IsTheWholeRampWithoutProperCirclesOrExtent) {
    const Path shape = rectanglePath({20, 1, 25, 4});
    expectRange(visibleRange({{15, 0}, 0, {0, 0}, 10}, {}, filled(shape)), 0, 1);
    expectRange(visibleRange({{10, 0}, 0, {0, 0}, 10}, {}, filled(shape)), 0, 1);
    expectRange(visibleRange({{0, 0}, 0, {0, 0}, std::nan("")}, {}, filled(shape)), 0, 1);
    expectRange(visibleRange(kCircle, {}, filled(rectanglePath({3, 3, 3, 3}))), 0, 1);
    expectRange(visibleRange(kCircle, {}, filled(rectanglePath({30, 30, 30, 30}))), 0, 1);
    expectRange(visibleRange(kCircle, {}, filled(Path())), 0, 1);
}

} // namespace
