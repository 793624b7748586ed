// Strokes against geometry: how far from the outline a point lies decides whether the pen covers it.
#include "easel/paint/stroke/Stroker.h"
#include "easel/paint/Painter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using easel::drawing::FillRule;
using easel::drawing::LineCap;
using easel::drawing::LineJoin;
using easel::drawing::Path;
using easel::drawing::Point;
using easel::drawing::Stroke;
using easel::paint::Painter;
using easel::paint::strokePolygons;
using easel::paint::Surface;

constexpr int kSide = 120;
constexpr double kTolerance = 0.02;

Stroke pen(double width, LineJoin join, LineCap cap, std::vector<double> dashes = {}, double offset = 0) {
    Stroke stroke;
    stroke.width = width;
    stroke.join = join;
    stroke.cap = cap;
    stroke.dashes = std::move(dashes);
    stroke.dashOffset = offset;
    return stroke;
}

Surface stroked(const Path& path, const Stroke& stroke) {
    Surface surface(kSide, kSide);
    Painter().fill(
        surface.view(),
        [&](const auto& receiver) { return strokePolygons(path, stroke, kTolerance, receiver); },
        FillRule::NonZero, {}, easel::drawing::ColorPaint{});
    return surface;
}

double coverage(const Surface& surface, int x, int y) {
    return (surface.row(y)[x] >> 24) / 255.0;
}

double area(const Surface& surface) {
    double sum = 0;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            sum += coverage(surface, x, y);
    return sum;
}

double areaOf(const Path& path, const Stroke& stroke) {
    return area(stroked(path, stroke));
}

Path corner(Point from, Point tip, Point to) {
    Path path;
    path.moveTo(from);
    path.lineTo(tip);
    path.lineTo(to);
    return path;
}

Path line(Point from, Point to) {
    Path path;
    path.moveTo(from);
    path.lineTo(to);
    return path;
}

// A pixel's center that is well inside the pen's reach must be covered, one well outside bare.
void expectRoundPen(const Path& path, double width, const Surface& surface) {
    const double half = width / 2;
    const double margin = std::numbers::sqrt2 / 2 + 2 * kTolerance;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) {
            const Point center{x + 0.5, y + 0.5};
            if (easel::drawing::outlineWithin(path, center, half - margin)) {
                ASSERT_GT(coverage(surface, x, y), 0.99) << x << "," << y;
            }
            if (!easel::drawing::outlineWithin(path, center, half + margin)) {
                ASSERT_LT(coverage(surface, x, y), 0.01) << x << "," << y;
            }
        }
}

TEST(Stroker, ARoundPenCoversExactlyThePointsWithinItsRadius) {
    std::mt19937 random(17);
    std::uniform_real_distribution<double> place(20, 100);
    const auto point = [&] { return Point{place(random), place(random)}; };
    for (int i = 0; i < 60; ++i) {
        SCOPED_TRACE(i);
        Path path;
        path.moveTo(point());
        for (int k = 0; k < 3; ++k) {
            path.lineTo(point());
            const Point control1 = point();
            const Point control2 = point();
            path.cubicTo(control1, control2, point());
        }
        if (i % 2 == 0)
            path.close();
        const double width = 2 + i % 9 * 3;
        const Surface surface = stroked(path, pen(width, LineJoin::Round, LineCap::Round));
        expectRoundPen(path, width, surface);
        if (HasFatalFailure())
            return;
    }
}

TEST(Stroker, CapsAddNothingHalfACircleOrHalfASquareAtEachEnd) {
    const Path path = line({30, 40}, {90, 85});
    const double length = 75;
    EXPECT_NEAR(areaOf(path, pen(10, LineJoin::Miter, LineCap::Butt)), length * 10, 1);
    EXPECT_NEAR(areaOf(path, pen(10, LineJoin::Miter, LineCap::Round)), length * 10 + std::numbers::pi * 25,
                1);
    EXPECT_NEAR(areaOf(path, pen(10, LineJoin::Miter, LineCap::Square)), length * 10 + 100, 1);
}

TEST(Stroker, JoinsFillTheWedgeOutsideACorner) {
    // A right angle: without a join the two bars cover 2 * 40 * 12 less the shared quarter; the wedge is 6
    // by 6.
    const Path path = corner({30, 70}, {70, 70}, {70, 30});
    const double bare = 2 * 40 * 12 - 6 * 6;
    EXPECT_NEAR(areaOf(path, pen(12, LineJoin::Miter, LineCap::Butt)), bare + 36, 0.5);
    EXPECT_NEAR(areaOf(path, pen(12, LineJoin::Bevel, LineCap::Butt)), bare + 18, 0.5);
    EXPECT_NEAR(areaOf(path, pen(12, LineJoin::Round, LineCap::Butt)), bare + std::numbers::pi * 9, 0.5);
}

TEST(Stroker, AMiterLongerThanItsLimitIsCutToABevel) {
    // The ratio of miter to width at a right angle is the square root of 2.
    const Path path = corner({30, 70}, {70, 70}, {70, 30});
    Stroke stroke = pen(12, LineJoin::Miter, LineCap::Butt);
    stroke.miterLimit = 1.42;
    const double mitered = areaOf(path, stroke);
    stroke.miterLimit = 1.41;
    EXPECT_NEAR(mitered - areaOf(path, stroke), 18, 0.1);
}

TEST(Stroker, AClosedOutlineIsABandWithoutCaps) {
    const Path path = easel::drawing::rectanglePath({30, 30, 90, 70});
    const Surface surface = stroked(path, pen(8, LineJoin::Miter, LineCap::Square));
    EXPECT_NEAR(area(surface), 68 * 48 - 52 * 32, 0.5);
    EXPECT_EQ(coverage(surface, 60, 50), 0);
    EXPECT_EQ(coverage(surface, 26, 26), 1);
}

TEST(Stroker, ACircleIsARing) {
    const Path path = easel::drawing::ellipsePath({60, 60}, 40, 40);
    for (const LineJoin join : {LineJoin::Miter, LineJoin::Bevel, LineJoin::Round})
        EXPECT_NEAR(areaOf(path, pen(10, join, LineCap::Butt)), std::numbers::pi * (45 * 45 - 35 * 35), 3);
}

TEST(Stroker, DashesCoverTheirShareAndBeginAtTheOffset) {
    const Path path = line({10, 60}, {110, 60});
    const Surface plain = stroked(path, pen(4, LineJoin::Miter, LineCap::Butt, {10, 10}));
    EXPECT_NEAR(area(plain), 50 * 4, 0.1);
    EXPECT_EQ(coverage(plain, 12, 60), 1);
    EXPECT_EQ(coverage(plain, 22, 60), 0);
    const Surface shifted = stroked(path, pen(4, LineJoin::Miter, LineCap::Butt, {10, 10}, 10));
    EXPECT_EQ(coverage(shifted, 12, 60), 0);
    EXPECT_EQ(coverage(shifted, 22, 60), 1);
    const Surface backwards = stroked(path, pen(4, LineJoin::Miter, LineCap::Butt, {10, 10}, -10));
    EXPECT_EQ(coverage(backwards, 12, 60), 0);
}

TEST(Stroker, ADashThatRunsThroughTheStartOfAClosedOutlineIsOnePieceWithAJoin) {
    // The pattern begins 5 before the corner at (30, 30), so the corner shows its miter.
    const Path path = easel::drawing::rectanglePath({30, 30, 90, 90});
    const Surface surface = stroked(path, pen(8, LineJoin::Miter, LineCap::Butt, {20, 20}, 5));
    EXPECT_EQ(coverage(surface, 26, 26), 1);
}

TEST(Stroker, DashesFinerThanCanBeDrawnBecomeAFainterLine) {
    int polygons = 0;
    const double opacity =
        strokePolygons(line({0, 0}, {1e7, 0}), pen(4, LineJoin::Miter, LineCap::Butt, {1e-3, 3e-3}), 0.02,
                       [&](const auto&) { return ++polygons > 0; });
    EXPECT_DOUBLE_EQ(opacity, 0.25);
    EXPECT_EQ(polygons, 1);
}

Path circleOfLines(int count, Point centre, double radius) {
    Path path;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * i / count;
        const Point p{centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
        i == 0 ? path.moveTo(p) : path.lineTo(p);
    }
    return path;
}

TEST(Stroker, ALongSubpathComesInSeveralPolygonsThatLeaveNoMarkWhereTheyMeet) {
    Path closed = circleOfLines(25'000, {60, 60}, 40);
    closed.close();
    const Stroke stroke = pen(8, LineJoin::Round, LineCap::Square);
    int polygons = 0;
    strokePolygons(closed, stroke, kTolerance, [&](const auto&) { return ++polygons > 0; });
    EXPECT_EQ(polygons, 3);
    // A ring. Beside its edges every pixel is covered wholly or not at all, at all the cuts too.
    const Surface surface = stroked(closed, stroke);
    EXPECT_NEAR(area(surface), std::numbers::pi * (44 * 44 - 36 * 36), 1);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) {
            const double distance = std::abs(std::hypot(x + 0.5 - 60, y + 0.5 - 60) - 40);
            if (std::abs(distance - 4) > 1) {
                EXPECT_EQ(coverage(surface, x, y), distance < 4 ? 1 : 0) << x << ", " << y;
            }
        }
}

TEST(Stroker, ALongOpenSubpathHasItsCapsAtItsEndsAlone) {
    // Up to where a twelfth of the circle is missing.
    const Path open = circleOfLines(25'000, {60, 60}, 40);
    Path most;
    for (std::size_t i = 0; i < open.points().size() * 11 / 12; ++i)
        i == 0 ? most.moveTo(open.points()[i]) : most.lineTo(open.points()[i]);
    const double ring = std::numbers::pi * (44 * 44 - 36 * 36) * 11 / 12;
    EXPECT_NEAR(areaOf(most, pen(8, LineJoin::Round, LineCap::Butt)), ring, 1);
    EXPECT_NEAR(areaOf(most, pen(8, LineJoin::Round, LineCap::Square)), ring + 2 * 4 * 8, 1);
    EXPECT_NEAR(areaOf(most, pen(8, LineJoin::Round, LineCap::Round)), ring + std::numbers::pi * 16, 1);
}

TEST(Stroker, ALongSubpathHasNoCapWhereItIsCut) {
    // The line after the 10,000th point is cut. A square cap in its middle would fill the bevel after it.
    Path path;
    path.moveTo({10, 20});
    for (int i = 1; i < 10'000; ++i)
        path.lineTo({10 + 90.0 * i / 9'999, 20});
    path.lineTo({100, 22});
    path.lineTo({60, 22});
    const Surface surface = stroked(path, pen(8, LineJoin::Bevel, LineCap::Square));
    EXPECT_EQ(coverage(surface, 103, 24), 0);
    EXPECT_EQ(coverage(surface, 100, 23), 1);
}

TEST(Stroker, ASubpathWithoutLengthIsADotOnlyForCapsThatReachOut) {
    const Path path = line({60, 60}, {60, 60});
    EXPECT_EQ(areaOf(path, pen(20, LineJoin::Round, LineCap::Butt)), 0);
    EXPECT_NEAR(areaOf(path, pen(20, LineJoin::Round, LineCap::Round)), std::numbers::pi * 100, 1);
    EXPECT_NEAR(areaOf(path, pen(20, LineJoin::Round, LineCap::Square)), 400, 0.1);
    Path move;
    move.moveTo({60, 60});
    EXPECT_EQ(areaOf(move, pen(20, LineJoin::Round, LineCap::Round)), 0);
}

TEST(Stroker, DashesOfNoLengthAreDots) {
    const Path path = line({20, 60}, {100, 60});
    const double dots = areaOf(path, pen(6, LineJoin::Round, LineCap::Round, {0, 16}));
    // Within the tolerance all the way around each of them.
    EXPECT_NEAR(dots, 5 * std::numbers::pi * 9, 5 * std::numbers::pi * 6 * kTolerance);
}

TEST(Stroker, ALineThatTurnsStraightBackHasItsJoinOnce) {
    const Path path = corner({30, 60}, {80, 60}, {30, 60});
    EXPECT_NEAR(areaOf(path, pen(10, LineJoin::Round, LineCap::Butt)), 500 + std::numbers::pi * 12.5, 1);
    EXPECT_NEAR(areaOf(path, pen(10, LineJoin::Miter, LineCap::Butt)), 500, 1);
}

TEST(Stroker, PointsThatNearlyCoincideMakeNoSpike) {
    Path path = line({30, 60}, {80, 60});
    path.lineTo({80 + 1e-9, 60 + 1e-9});
    path.lineTo({80, 90});
    EXPECT_NEAR(areaOf(path, pen(10, LineJoin::Miter, LineCap::Butt)), 50 * 10 + 30 * 10, 0.5);
}

TEST(Stroker, NumbersThatAreNoneAndHugeOnesNeverHang) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    Path path;
    path.moveTo({10, 10});
    path.lineTo({kNan, 20});
    path.cubicTo({kInfinity, 0}, {30, -kInfinity}, {40, 40});
    path.lineTo({1e300, -1e300});
    path.lineTo({50, 50});
    path.close();
    for (const double width : {1.0, 1e-300, 1e300, kInfinity, kNan, -3.0})
        for (const LineJoin join : {LineJoin::Miter, LineJoin::Bevel, LineJoin::Round})
            stroked(path, pen(width, join, LineCap::Round, {3, 4}, kNan));
}

} // namespace
