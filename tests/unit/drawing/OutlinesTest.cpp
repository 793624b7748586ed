// Ready-made outlines, what makes two paths equal, and points at the height of a corner.
#include "easel/drawing/Path.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace easel::drawing;

Path mirroredAcross(const Path& path, double x) {
    return path.transformed(Affine{-1, 0, 0, 1, 2 * x, 0});
}

TEST(Outlines, ARoundedRectangleIsRoundAtItsFourCorners) {
    const Path path = roundedRectanglePath({0, 0, 40, 20}, 10, 5);
    for (const Path& shape : {path, mirroredAcross(path, 20), path.transformed(Affine{1, 0, 0, -1, 0, 20})}) {
        // A point of the ellipse around (10, 5) with these radii at 45 degrees, from either side.
        EXPECT_TRUE(contains(shape, FillRule::NonZero, {10 - 0.7 * 10, 5 - 0.7 * 5}));
        EXPECT_FALSE(contains(shape, FillRule::NonZero, {10 - 0.72 * 10, 5 - 0.72 * 5}));
        EXPECT_TRUE(contains(shape, FillRule::NonZero, {0.01, 10}));
        EXPECT_TRUE(contains(shape, FillRule::NonZero, {20, 0.01}));
        EXPECT_TRUE(shape.closed());
    }
}

TEST(Outlines, ARectangleThatIsRoundInOneDirectionOnlyHasCorners) {
    const Box box{0, 0, 40, 20};
    EXPECT_EQ(roundedRectanglePath(box, 0, 5), rectanglePath(box));
    EXPECT_EQ(roundedRectanglePath(box, 10, 0), rectanglePath(box));
    EXPECT_EQ(roundedRectanglePath(box, -1, 5), rectanglePath(box));
}

TEST(Outlines, ReachAsFarAsTheirCurvesInEitherDirection) {
    Path path;
    path.moveTo({0, 0});
    path.cubicTo({100, 0}, {100, 100}, {0, 100});
    EXPECT_EQ(path.bounds(), (Box{0, 0, 75, 100}));
    EXPECT_EQ(mirroredAcross(path, 0).bounds(), (Box{-75, 0, 0, 100}));
}

TEST(Outlines, AreClosedIfEachSubpathIs) {
    Path path = rectanglePath({0, 0, 10, 10});
    EXPECT_TRUE(path.closed());
    EXPECT_TRUE(ellipsePath({0, 0}, 3, 4).closed());
    path.moveTo({3, 3});
    EXPECT_TRUE(path.closed()) << "a move alone is no subpath";
    path.lineTo({4, 4});
    EXPECT_FALSE(path.closed());
    path.close();
    EXPECT_TRUE(path.closed());
    Path openFirst = polylinePath({{0, 0}, {1, 1}});
    openFirst.moveTo({2, 2});
    openFirst.lineTo({3, 3});
    openFirst.close();
    EXPECT_FALSE(openFirst.closed());
}

TEST(Outlines, AreEqualIfVerbsAndPointsAre) {
    EXPECT_EQ(rectanglePath({0, 0, 10, 10}), rectanglePath({0, 0, 10, 10}));
    EXPECT_FALSE(rectanglePath({0, 0, 10, 10}) == rectanglePath({0, 0, 10, 11}));
    EXPECT_FALSE(polylinePath({{0, 0}, {1, 1}}) == polygonPath({{0, 0}, {1, 1}}));
}

TEST(Outlines, ACornerAtTheHeightOfAPointCountsOnce) {
    const Path diamond = polygonPath({{5, 0}, {10, 5}, {5, 10}, {0, 5}});
    for (const Path& shape : {diamond, mirroredAcross(diamond, 5)}) {
        EXPECT_TRUE(contains(shape, FillRule::EvenOdd, {2, 5}));
        EXPECT_FALSE(contains(shape, FillRule::EvenOdd, {-2, 5}));
        EXPECT_FALSE(contains(shape, FillRule::EvenOdd, {12, 5}));
        EXPECT_FALSE(contains(shape, FillRule::NonZero, {-2, 5}));
        EXPECT_FALSE(contains(shape, FillRule::NonZero, {2, 10}));
        EXPECT_FALSE(contains(shape, FillRule::NonZero, {2, 0}));
    }
}

} // namespace
