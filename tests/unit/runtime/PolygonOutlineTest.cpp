// Outlines made of corners alone.
#include "easel/runtime/PolygonOutline.h"
#include "easel/runtime/HostPixels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace easel::runtime {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

drawing::Path lineOf(const std::vector<drawing::Point>& corners) {
    drawing::Path path;
    path.moveTo(corners.front());
    for (std::size_t i = 1; i < corners.size(); ++i)
        path.lineTo(corners[i]);
    return path;
}

TEST(PolygonOutline, HasAnInsideFromThreeCornersOn) {
    EXPECT_TRUE(polygonOutline(lineOf({{0, 0}, {9, 0}}), 1).empty());
    const drawing::Path triangle = polygonOutline(lineOf({{0, 0}, {9, 0}, {9, 9}}), 1);
    EXPECT_THAT(triangle.points(),
                testing::ElementsAre(drawing::Point{0, 0}, drawing::Point{9, 0}, drawing::Point{9, 9}));
    EXPECT_EQ(triangle.verbs().back(), drawing::Verb::Close);
}

TEST(PolygonOutline, KeepsALineBesideWhatHasAnInside) {
    drawing::Path both = lineOf({{0, 0}, {9, 0}, {9, 9}});
    both.moveTo({20, 20});
    both.lineTo({30, 20});
    EXPECT_EQ(polygonOutline(both, 1).points().size(), 5U);
}

TEST(PolygonOutline, IsNoneWhereACornerIsNowhere) {
    EXPECT_TRUE(polygonOutline(lineOf({{0, 0}, {9, 0}, {kInfinite, 9}}), 1).empty());
}

TEST(HostPixels, ACoordinateIsNearestToOneCornerWithinSixteenBits) {
    EXPECT_EQ(nearestCorner(2.4), 2);
    EXPECT_EQ(nearestCorner(2.6), 3);
    EXPECT_EQ(nearestCorner(-2.6), -3);
    EXPECT_EQ(nearestCorner(1e9), 32767);
    EXPECT_EQ(nearestCorner(-kInfinite), -32768);
    EXPECT_EQ(nearestCorner(kNone), 0);
}

TEST(HostPixels, ARectangleHasTheSameEdgesOnBothSides) {
    const TRect<short> rect(1, 2, 3, 4);
    EXPECT_EQ(fromHost(rect), (paint::PixelRect{.left = 2, .top = 1, .right = 4, .bottom = 3}));
    EXPECT_EQ(toHost(fromHost(rect)), rect);
}

} // namespace
} // namespace easel::runtime
