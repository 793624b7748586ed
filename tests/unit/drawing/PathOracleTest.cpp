// What is asked of outlines, compared with the same asked of very many points along them.
#include "easel/drawing/Path.h"
#include "easel/drawing/Segments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

using namespace easel::drawing;

// An outline as points along it, by the definition of the curves; each subpath apart.
struct Trace {
    std::vector<Point> points;
    bool closed = false;
};

struct Drawn {
    Path path;
    std::vector<Trace> traces;
};

class Pencil {
  public:
    explicit Pencil(unsigned seed) : random_(seed) {}

    Point somewhere() { return {number(), number()}; }

    // Some subpaths of lines and curves, some of them closed, some going on where one was closed.
    Drawn draw() {
        Drawn drawn;
        for (int i = 0; i < 3; ++i) {
            const Point start = somewhere();
            drawn.path.moveTo(start);
            subpath(drawn, start);
            if (drawn.traces.back().closed && random_() % 2 == 0)
                subpath(drawn, start);
        }
        return drawn;
    }

  private:
    double number() { return std::uniform_real_distribution<double>(-100, 100)(random_); }

    void subpath(Drawn& drawn, Point start) {
        Trace trace{{start}, random_() % 2 == 0};
        for (int i = 0; i < 4; ++i) {
            const Point from = trace.points.back();
            const Point a = somewhere();
            if (random_() % 2 == 0) {
                drawn.path.lineTo(a);
                trace.points.push_back(a);
                continue;
            }
            const Point b = somewhere();
            const Point end = somewhere();
            drawn.path.cubicTo(a, b, end);
            for (int k = 1; k <= 400; ++k) {
                const double t = k / 400.0;
                const auto mix = [t](Point p, Point q) { return p * (1 - t) + q * t; };
                const Point left = mix(mix(from, a), mix(a, b));
                const Point right = mix(mix(a, b), mix(b, end));
                trace.points.push_back(mix(left, right));
            }
        }
        if (trace.closed)
            drawn.path.close();
        drawn.traces.push_back(trace);
    }

    std::mt19937 random_;
};

// How far around the point the traces go, in whole turns, each closed by a straight line: the sum of angles.
int turnsAround(const std::vector<Trace>& traces, Point p) {
    double sum = 0;
    for (const Trace& trace : traces)
        for (std::size_t i = 0; i < trace.points.size(); ++i) {
            const Point from = trace.points[i] - p;
            const Point to = trace.points[(i + 1) % trace.points.size()] - p;
            sum += std::atan2(cross(from, to), dot(from, to));
        }
    return static_cast<int>(std::lround(sum / (2 * std::acos(-1.0))));
}

// The distance to the nearest line between points of the traces; that which closes counts if asked for.
double distanceTo(const std::vector<Trace>& traces, Point p, bool withOpenEnds) {
    double nearest = 1e9;
    for (const Trace& trace : traces)
        for (std::size_t i = 0; i < trace.points.size(); ++i) {
            if (i + 1 == trace.points.size() && !trace.closed && !withOpenEnds)
                continue;
            const Point from = trace.points[i];
            const Point to = trace.points[(i + 1) % trace.points.size()];
            for (int k = 0; k <= 4; ++k) {
                const Point at = from + (to - from) * (k / 4.0);
                nearest = std::min(nearest, length(p - at));
            }
            const double whole = length(to - from);
            const double along = whole > 0 ? dot(p - from, to - from) / whole : 0;
            if (along > 0 && along < whole)
                nearest = std::min(nearest, std::abs(cross(p - from, to - from)) / whole);
        }
    return nearest;
}

TEST(PathOracle, PointsAreInsideWhereTheOutlineGoesAroundThem) {
    Pencil pencil(3);
    int inside = 0;
    for (int round = 0; round < 30; ++round) {
        const Drawn drawn = pencil.draw();
        for (int i = 0; i < 25; ++i) {
            const Point p = pencil.somewhere();
            // This close to the outline the points along it do not tell.
            if (distanceTo(drawn.traces, p, true) < 0.1)
                continue;
            const int turns = turnsAround(drawn.traces, p);
            inside += turns != 0;
            EXPECT_EQ(contains(drawn.path, FillRule::NonZero, p), turns != 0) << round;
            EXPECT_EQ(contains(drawn.path, FillRule::EvenOdd, p), turns % 2 != 0) << round;
        }
    }
    EXPECT_GT(inside, 100);
}

TEST(PathOracle, PointsAreNearWhereTheOutlineIs) {
    Pencil pencil(4);
    for (int round = 0; round < 60; ++round) {
        const Drawn drawn = pencil.draw();
        for (int i = 0; i < 10; ++i) {
            const Point p = pencil.somewhere();
            const double distance = distanceTo(drawn.traces, p, false);
            EXPECT_TRUE(outlineWithin(drawn.path, p, distance + 0.1)) << round;
            EXPECT_FALSE(outlineWithin(drawn.path, p, distance - 0.1)) << round;
        }
    }
}

TEST(PathOracle, BoundsHoldTheOutlineTightly) {
    Pencil pencil(5);
    for (int round = 0; round < 200; ++round) {
        const Drawn drawn = pencil.draw();
        Box around;
        for (const Trace& trace : drawn.traces)
            for (const Point p : trace.points)
                around.add(p);
        const Box bounds = drawn.path.bounds();
        EXPECT_NEAR(bounds.left, around.left, 0.02);
        EXPECT_NEAR(bounds.top, around.top, 0.02);
        EXPECT_NEAR(bounds.right, around.right, 0.02);
        EXPECT_NEAR(bounds.bottom, around.bottom, 0.02);
    }
}

TEST(PathOracle, PolygonsFollowTheOutlineWithinTheTolerance) {
    Pencil pencil(6);
    for (int round = 0; round < 60; ++round) {
        const Drawn drawn = pencil.draw();
        const double tolerance = round % 2 == 0 ? 0.5 : 5;
        const std::vector<Contour> contours = flatten(drawn.path, tolerance);
        ASSERT_EQ(contours.size(), drawn.traces.size());
        for (std::size_t i = 0; i < contours.size(); ++i) {
            const Trace& trace = drawn.traces[i];
            EXPECT_EQ(contours[i].closed, trace.closed);
            EXPECT_EQ(contours[i].points.front(), trace.points.front());
            EXPECT_EQ(contours[i].points.back(), trace.points.back());
            const std::vector<Trace> polygon{{contours[i].points, contours[i].closed}};
            for (std::size_t k = 0; k < trace.points.size(); k += 7)
                EXPECT_LE(distanceTo(polygon, trace.points[k], false), tolerance + 1e-9);
        }
    }
}

TEST(PathOracle, CurvesTakeAsManyLinesAsTheirBendAsksFor) {
    // The second derivative of a cubic is at most six times the bend of its controls, and a chord strays by
    // an eighth of that times the square of the step: 0.75 times bend over tolerance is the square of the
    // number.
    const auto lines = [](double bend, double tolerance, int most) {
        return linesFor({{0, 0}, {0, 0}, {bend, 0}, {2 * bend, 0}}, tolerance, most);
    };
    EXPECT_EQ(lines(12, 1, 100), 3);
    EXPECT_EQ(lines(12.1, 1, 100), 4);
    EXPECT_EQ(lines(12, 0.25, 100), 6);
    EXPECT_EQ(lines(12, 0.25, 5), 5);
    EXPECT_EQ(lines(0, 1, 100), 1);
    EXPECT_EQ(lines(0.01, 1, 100), 1);
    EXPECT_EQ(lines(std::nan(""), 1, 100), 1);
    EXPECT_EQ(linesFor({{0, 0}, {12, 0}, {24, 0}, {24, 0}}, 1, 100), 3) << "bent at its end";
}

} // namespace
