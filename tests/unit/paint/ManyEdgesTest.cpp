// Shapes of more edges than are held at a time, and curves of which only a part is seen.
#include "easel/paint/Painter.h"
#include "easel/paint/coverage/LineRanges.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using easel::drawing::CubicSegment;
using easel::drawing::FillRule;
using easel::drawing::Path;
using easel::drawing::Point;
using easel::paint::LineRange;
using easel::paint::LineRanges;
using easel::paint::Painter;
using easel::paint::Surface;

constexpr int kLines = 200;

Point pointOf(const CubicSegment& curve, int i) {
    return i == kLines ? curve.end : curve.at(static_cast<double>(i) / kLines);
}

bool passes(const CubicSegment& curve, int line, double top, double bottom) {
    const auto [low, high] = std::minmax({pointOf(curve, line).y, pointOf(curve, line + 1).y});
    return high > top && low < bottom;
}

TEST(LineRanges, HoldEveryLineBetweenTheHeights) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> anywhere(-100, 200);
    int skipped = 0;
    for (int round = 0; round < 2000; ++round) {
        const auto point = [&] { return Point{anywhere(random), anywhere(random)}; };
        const CubicSegment curve{point(), point(), point(), point()};
        const double top = anywhere(random);
        const double bottom = top + 20;
        const LineRanges seen(curve, kLines, top, bottom);
        int next = 0;
        for (const LineRange& range : seen.ranges()) {
            ASSERT_GE(range.first, next);
            ASSERT_GT(range.end, range.first);
            for (; next < range.first; ++next, ++skipped)
                ASSERT_FALSE(passes(curve, next, top, bottom)) << "line " << next << " of curve " << round;
            next = range.end;
        }
        ASSERT_LE(next, kLines);
        for (; next < kLines; ++next, ++skipped)
            ASSERT_FALSE(passes(curve, next, top, bottom)) << "line " << next << " of curve " << round;
    }
    // A strip of 20 out of 300 is seldom passed by most of a curve.
    EXPECT_GT(skipped, 2000 * kLines / 2);
}

TEST(LineRanges, OfLevelAndStraightCurves) {
    const CubicSegment level{{0, 5}, {1, 5}, {2, 5}, {3, 5}};
    EXPECT_TRUE(LineRanges(level, kLines, 10, 20).ranges().empty());
    const CubicSegment straight{{0, 0}, {1, 100}, {2, 200}, {3, 300}};
    const LineRanges seen(straight, 300, 100.5, 110.5);
    ASSERT_EQ(seen.ranges().size(), 1u);
    EXPECT_NEAR(seen.ranges()[0].first, 100, 1);
    EXPECT_NEAR(seen.ranges()[0].end, 111, 1);
}

TEST(Painter, AShapeOfMoreEdgesThanAreHeldIsPaintedWhole) {
    constexpr int kWidth = 1024;
    constexpr int kHeight = 640;
    // The middle of every pixel: two edges each, 1.3 million in all.
    Path shape;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            shape.moveTo({x + 0.25, y + 0.25});
            shape.lineTo({x + 0.75, y + 0.25});
            shape.lineTo({x + 0.75, y + 0.75});
            shape.lineTo({x + 0.25, y + 0.75});
            shape.close();
        }
    Surface surface(kWidth, kHeight);
    Painter().fill(surface.view(), shape, FillRule::NonZero, {}, easel::drawing::ColorPaint{});
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            ASSERT_EQ(surface.row(y)[x] >> 24, 64u) << x << ", " << y;
}

} // namespace
