// Flattening of outlines in surface coordinates, straight into the rasteriser.
#include "easel/paint/coverage/OutlineEdges.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

namespace {

using drawing::Affine;
using drawing::Point;

constexpr double kTolerance = 0.02; // pixels
constexpr double kMostSteps = 1000;

// Joins the points given to it into one closed polygon after the other.
class Pen {
  public:
    explicit Pen(Rasteriser& rasteriser) : rasteriser_(rasteriser) {}
    ~Pen() { close(); }
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

    void lineTo(Point p) {
        if (!isFinite(p))
            return;
        if (down_)
            rasteriser_.addEdge(last_, p);
        else
            first_ = p;
        down_ = true;
        last_ = p;
    }
    void curveTo(Point control1, Point control2, Point end) {
        if (!down_ || !isFinite(control1) || !isFinite(control2) || !isFinite(end))
            return lineTo(end);
        const Point start = last_;
        const int steps = stepsFor(start, control1, control2, end);
        for (int i = 1; i < steps; ++i)
            lineTo(onCurve(start, control1, control2, end, static_cast<double>(i) / steps));
        lineTo(end);
    }
    void close() {
        if (down_)
            rasteriser_.addEdge(last_, first_);
        last_ = first_;
        down_ = false;
    }
    Point first() const { return first_; }

  private:
    // A cubic cut into n equal steps strays at most 3/4 of its largest second difference over n squared.
    static int stepsFor(Point p0, Point p1, Point p2, Point p3) {
        const double bend = std::max(length(p0 - p1 * 2 + p2), length(p1 - p2 * 2 + p3));
        return static_cast<int>(std::clamp(std::ceil(std::sqrt(bend * 0.75 / kTolerance)), 1.0, kMostSteps));
    }
    static Point onCurve(Point p0, Point p1, Point p2, Point p3, double t) {
        const double s = 1 - t;
        return p0 * (s * s * s) + p1 * (3 * s * s * t) + p2 * (3 * s * t * t) + p3 * (t * t * t);
    }

    Rasteriser& rasteriser_;
    Point first_;
    Point last_;
    bool down_ = false;
};

} // namespace

void addOutline(Rasteriser& rasteriser, const drawing::Path& shape, const Affine& toSurface) {
    Pen pen(rasteriser);
    auto point = shape.points().begin();
    const auto next = [&] { return toSurface(*point++); };
    for (const drawing::Verb verb : shape.verbs()) {
        switch (verb) {
        case drawing::Verb::Move:
            pen.close();
            pen.lineTo(next());
            break;
        case drawing::Verb::Line:
            pen.lineTo(next());
            break;
        case drawing::Verb::Cubic: {
            const Point control1 = next();
            const Point control2 = next();
            pen.curveTo(control1, control2, next());
            break;
        }
        case drawing::Verb::Close:
            pen.close();
            break;
        }
    }
}

void addOutline(Rasteriser& rasteriser, std::span<const drawing::Contour> polygons, const Affine& toSurface) {
    Pen pen(rasteriser);
    for (const drawing::Contour& polygon : polygons) {
        for (const Point& point : polygon.points)
            pen.lineTo(toSurface(point));
        pen.close();
    }
}

} // namespace easel::paint
