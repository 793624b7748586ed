// A path as polygons, close enough for whoever asks.
#include "easel/drawing/Path.h"
#include "easel/drawing/Segments.h"

#include <utility>

namespace easel::drawing {

namespace {

// Finer than any picking needs: a hundredth of a pixel at scale 1.
constexpr double kPickTolerance = 0.01;

struct ContourSink {
    double tolerance;
    std::vector<Contour> contours;
    Contour current;

    void finish(bool closed) {
        if (closed && current.points.size() > 1 && current.points.front() == current.points.back())
            current.points.pop_back();
        if (current.points.size() > 1)
            contours.push_back({std::exchange(current.points, {}), closed});
        current.points.clear();
    }
    void move(Point p) {
        finish(false);
        current.points.push_back(p);
    }
    void line(Point, Point to) { current.points.push_back(to); }
    void cubic(const CubicSegment& curve) {
        flattenCubic(curve, tolerance, [this](Point from, Point to) { line(from, to); });
    }
    void close(Point, Point) { finish(true); }
};

// Counts how often the outline goes around the point: crossings of the ray from it to the right.
struct WindingSink {
    Point p;
    int winding = 0;
    Point start;
    Point current;

    void edge(Point from, Point to) {
        const bool down = from.y <= p.y && to.y > p.y;
        const bool up = to.y <= p.y && from.y > p.y;
        if (!down && !up)
            return;
        const double side = (to.x - from.x) * (p.y - from.y) - (p.x - from.x) * (to.y - from.y);
        if (down && side > 0)
            ++winding;
        else if (up && side < 0)
            --winding;
    }
    void move(Point next) {
        edge(current, start);
        start = current = next;
    }
    void line(Point from, Point to) {
        edge(from, to);
        current = to;
    }
    void cubic(const CubicSegment& curve) {
        // Only a curve whose hull surrounds the point can pass it on either side.
        if (curve.hull().contains(p))
            flattenCubic(curve, kPickTolerance, [this](Point from, Point to) { edge(from, to); });
        else
            edge(curve.start, curve.end);
        current = curve.end;
    }
    void close(Point from, Point to) {
        edge(from, to);
        current = to;
    }
};

double distanceToLine(Point p, Point from, Point to) {
    const Point along = to - from;
    const double square = dot(along, along);
    const double t = square > 0 ? std::clamp(dot(p - from, along) / square, 0.0, 1.0) : 0.0;
    return length(p - (from + along * t));
}

struct NearnessSink {
    Point p;
    double distance;
    bool near = false;

    void move(Point) {}
    void line(Point from, Point to) { near = near || distanceToLine(p, from, to) <= distance; }
    void cubic(const CubicSegment& curve) {
        if (!near && curve.hull().grownBy(distance).contains(p))
            flattenCubic(curve, kPickTolerance, [this](Point from, Point to) { line(from, to); });
    }
    void close(Point from, Point to) { line(from, to); }
};

} // namespace

int linesFor(const CubicSegment& curve, double tolerance, int most) {
    // The curve strays from a chord by at most an eighth of its second derivative times the step squared.
    const double bend = std::max(length(curve.start - curve.control1 * 2 + curve.control2),
                                 length(curve.control1 - curve.control2 * 2 + curve.end));
    const double lines = std::ceil(std::sqrt(0.75 * bend / tolerance));
    return lines >= 1 ? static_cast<int>(std::min(lines, static_cast<double>(most))) : 1;
}

std::vector<Contour> flatten(const Path& path, double tolerance) {
    ContourSink sink{tolerance, {}, {}};
    walkSegments(path, sink);
    sink.finish(false);
    return std::move(sink.contours);
}

bool contains(const Path& path, FillRule rule, Point p) {
    WindingSink sink{p, 0, {}, {}};
    walkSegments(path, sink);
    sink.edge(sink.current, sink.start);
    return rule == FillRule::NonZero ? sink.winding != 0 : sink.winding % 2 != 0;
}

bool outlineWithin(const Path& path, Point p, double distance) {
    NearnessSink sink{p, distance};
    walkSegments(path, sink);
    return sink.near;
}

} // namespace easel::drawing
