// Paths as they come into the drawing.
#include "easel/svg/read/Scene.h"

#include <gtest/gtest.h>

namespace {

using namespace easel;

TEST(PlacedPath, IsMovedInItsMemoryUnlessSomebodyKeepsItAsItWas) {
    drawing::Path path = drawing::polygonPath({{1, 2}, {3, 4}, {5, 0}});
    const drawing::Path halved = drawing::polygonPath({{0.5, 1}, {1.5, 2}, {2.5, 0}});
    const drawing::Affine half = drawing::Affine::scaling(0.5, 0.5);
    EXPECT_EQ(svg::placedPath(path, half), halved);
    EXPECT_EQ(path.points().front(), (drawing::Point{1, 2}));
    const drawing::Point* const memory = path.points().data();
    const auto placed = svg::placedPath(std::move(path), half);
    EXPECT_EQ(placed, halved);
    EXPECT_EQ(placed->points().data(), memory);
}

TEST(PlacedPath, IsNothingWhereACoordinateLiesTooFarAway) {
    const drawing::Path path = drawing::polygonPath({{0, 0}, {1, 0}, {0, 1}});
    EXPECT_TRUE(svg::placedPath(path, drawing::Affine::scaling(1e9, 1)));
    EXPECT_FALSE(svg::placedPath(path, drawing::Affine::scaling(1.1e9, 1)));
}

} // namespace
