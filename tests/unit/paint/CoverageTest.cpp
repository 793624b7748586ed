// Edges: the share of each pixel that a shape covers, against areas computed by clipping the shape to the
// pixel.
#include "easel/paint/Painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace {

using namespace easel;
using drawing::Contour;
using drawing::FillRule;
using drawing::Point;

constexpr drawing::ColorPaint kWhite{{65535, 65535, 65535}, 1};
constexpr double kLargestError = 2; // levels

using Polygon = std::vector<Point>;

// The part of a polygon on one side of a line parallel to an axis. `distance` is positive inside.
template <class Distance> Polygon cut(const Polygon& polygon, const Distance& distance) {
    Polygon result;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point a = polygon[i];
        const Point b = polygon[(i + 1) % polygon.size()];
        const double da = distance(a);
        const double db = distance(b);
        if (da >= 0)
            result.push_back(a);
        if ((da >= 0) != (db >= 0))
            result.push_back(a + (b - a) * (da / (da - db)));
    }
    return result;
}

// Signed, so that the areas of contours that enclose an area in opposite senses cancel.
double areaOf(const Polygon& polygon) {
    double twice = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point a = polygon[i];
        const Point b = polygon[(i + 1) % polygon.size()];
        twice += a.x * b.y - a.y * b.x;
    }
    return twice / 2;
}

double areaInPixel(const Polygon& polygon, int x, int y) {
    Polygon part = cut(polygon, [&](Point p) { return p.x - x; });
    part = cut(part, [&](Point p) { return x + 1 - p.x; });
    part = cut(part, [&](Point p) { return p.y - y; });
    part = cut(part, [&](Point p) { return y + 1 - p.y; });
    return areaOf(part);
}

paint::Surface coverageOf(const std::vector<Polygon>& polygons, FillRule rule, int width, int height) {
    paint::Surface surface(width, height);
    surface.clear(0xFF000000);
    std::vector<Contour> contours;
    for (const Polygon& polygon : polygons)
        contours.push_back({polygon, true});
    paint::Painter().fill(surface.view(), contours, rule, {}, kWhite);
    return surface;
}

// For shapes that wind at most once about any point.
double largestError(const std::vector<Polygon>& polygons, int width, int height) {
    const paint::Surface surface = coverageOf(polygons, FillRule::NonZero, width, height);
    double largest = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            double area = 0;
            for (const Polygon& polygon : polygons)
                area += areaInPixel(polygon, x, y);
            largest = std::max(largest, std::abs(std::abs(area) * 255 - (surface.row(y)[x] & 0xFF)));
        }
    }
    return largest;
}

// A simple polygon: one point in each direction from a centre.
Polygon star(Point centre, int points, double inner, double outer, double turn, double stretch = 1) {
    Polygon polygon;
    for (int i = 0; i < points; ++i) {
        const double angle = turn + 2 * std::numbers::pi * i / points;
        const double radius = i % 2 == 0 ? outer : inner;
        polygon.push_back(
            {centre.x + radius * stretch * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
    return polygon;
}

TEST(Coverage, IsTheExactAreaOfRandomPolygons) {
    std::mt19937 engine(1);
    const auto real = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine);
    };
    for (int i = 0; i < 300; ++i) {
        const auto polygon = star({real(0, 60), real(0, 40)}, 3 + i % 40, real(0.5, 10), real(1, 40),
                                  real(0, 7), real(0.2, 3));
        EXPECT_LE(largestError({polygon}, 60, 40), kLargestError) << "polygon " << i;
    }
}

TEST(Coverage, IsTheExactAreaOfASpikyStarWithManyPoints) {
    EXPECT_LE(largestError({star({100, 75}, 500, 40, 70, 0.01, 1.3)}, 200, 150), kLargestError);
}

TEST(Coverage, IsTheExactAreaOfNearlyHorizontalAndNearlyVerticalSlivers) {
    EXPECT_LE(largestError({{{3, 5.2}, {97, 5.3}, {97, 5.9}, {3, 5.6}}}, 100, 10), kLargestError);
    EXPECT_LE(largestError({{{5.2, 1}, {5.25, 98}, {5.9, 98}, {5.7, 1}}}, 12, 100), kLargestError);
    EXPECT_LE(largestError({{{1.5, 2.4999}, {60.5, 2.5001}, {60, 2.9}}}, 64, 5), kLargestError);
}

TEST(Coverage, HolesTakeTheirAreaOut) {
    Polygon hole = star({30, 20}, 9, 6, 9, 0.3);
    std::reverse(hole.begin(), hole.end());
    EXPECT_LE(largestError({star({30, 20}, 30, 17, 19, 0), hole}, 60, 40), kLargestError);
}

TEST(Coverage, ShapesThatReachBeyondEveryBorderAreCutExactly) {
    const Polygon large = star({20, 15}, 7, 30, 4000, 0.2);
    EXPECT_LE(largestError({large}, 40, 30), kLargestError);
    const Polygon leftOfAll = {{-50, -10}, {10.25, 12}, {-40, 50}};
    EXPECT_LE(largestError({leftOfAll}, 40, 30), kLargestError);
    const Polygon rightOfAll = {{90, -10}, {20.75, 12}, {95, 50}};
    EXPECT_LE(largestError({rightOfAll}, 40, 30), kLargestError);
}

TEST(Coverage, FollowsTheFillRuleWhereASquareLiesTwice) {
    const Polygon outer = {{1, 1}, {9, 1}, {9, 9}, {1, 9}};
    const Polygon inner = {{3, 3}, {7, 3}, {7, 7}, {3, 7}};
    const paint::Surface nonZero = coverageOf({outer, inner}, FillRule::NonZero, 10, 10);
    const paint::Surface evenOdd = coverageOf({outer, inner}, FillRule::EvenOdd, 10, 10);
    EXPECT_EQ(nonZero.row(5)[5], 0xFFFFFFFFU);
    EXPECT_EQ(evenOdd.row(5)[5], 0xFF000000U);
    EXPECT_EQ(evenOdd.row(2)[5], 0xFFFFFFFFU);
}

TEST(Coverage, AShapeThatWindsManyThousandTimesIsFilledAsItsRuleSays) {
    const std::vector<Polygon> squares(70000, {{1, 1}, {9.5, 1}, {9.5, 4}, {1, 4}});
    const paint::Surface nonZero = coverageOf(squares, FillRule::NonZero, 12, 5);
    const paint::Surface evenOdd = coverageOf(squares, FillRule::EvenOdd, 12, 5);
    EXPECT_EQ(nonZero.row(2)[5], 0xFFFFFFFFU);
    EXPECT_EQ(nonZero.row(2)[10], 0xFF000000U);
    EXPECT_EQ(evenOdd.row(2)[5], 0xFF000000U);
}

TEST(Coverage, CurvesAreFollowedToATenthOfALevelOfTheirArea) {
    paint::Surface surface(100, 100);
    paint::Painter().fill(surface.view(), drawing::ellipsePath({50.3, 49.6}, 40, 40), FillRule::NonZero, {},
                          kWhite);
    double sum = 0;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            sum += (surface.row(y)[x] & 0xFF) / 255.0;
    // The cubic outline itself is within 0.03 % of the radius.
    EXPECT_NEAR(sum, std::numbers::pi * 1600, std::numbers::pi * 1600 * 0.001);
}

TEST(Coverage, NothingIsPaintedOutsideTheClip) {
    paint::Surface surface(50, 40);
    const paint::PixelRect clip{.left = 7, .top = 5, .right = 31, .bottom = 22};
    paint::Painter().fill(surface.view().clippedTo(clip), drawing::ellipsePath({20, 20}, 300, 200),
                          FillRule::NonZero, {}, kWhite);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 50; ++x)
            EXPECT_EQ(surface.row(y)[x] != 0, x >= 7 && x < 31 && y >= 5 && y < 22) << x << "," << y;
}

TEST(Coverage, NeighborsThatShareAnEdgeAddUp) {
    // Black on white: each half leaves its share, and the two shares are one.
    const Polygon left = {{0, 0}, {13.37, 0}, {22.9, 30}, {0, 30}};
    const Polygon right = {{13.37, 0}, {40, 0}, {40, 30}, {22.9, 30}};
    const paint::Surface a = coverageOf({left}, FillRule::NonZero, 40, 30);
    const paint::Surface b = coverageOf({right}, FillRule::NonZero, 40, 30);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x)
            EXPECT_NEAR((a.row(y)[x] & 0xFF) + (b.row(y)[x] & 0xFF), 255, 1) << x << "," << y;
}

} // namespace
