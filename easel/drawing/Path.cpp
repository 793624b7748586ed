#include "easel/drawing/Path.h"

#include "easel/drawing/Segments.h"

#include <cstddef>

namespace easel::drawing {

namespace {

std::ptrdiff_t pointCount(Verb verb) {
    if (verb == Verb::Cubic)
        return 3;
    return verb == Verb::Close ? 0 : 1;
}

} // namespace

void Path::moveTo(Point p) {
    // Of several moves in a row only the last counts.
    if (!verbs_.empty() && verbs_.back() == Verb::Move) {
        points_.back() = p;
    } else {
        verbs_.push_back(Verb::Move);
        points_.push_back(p);
    }
}

void Path::beginSegment() {
    if (verbs_.empty())
        moveTo({});
    else if (verbs_.back() == Verb::Close)
        moveTo(subpathStart());
}

Point Path::subpathStart() const {
    const Point* start = points_.data() + points_.size();
    for (std::size_t i = verbs_.size(); i-- > 0;) {
        start -= pointCount(verbs_[i]);
        if (verbs_[i] == Verb::Move)
            break;
    }
    return *start;
}

void Path::lineTo(Point p) {
    beginSegment();
    verbs_.push_back(Verb::Line);
    points_.push_back(p);
}

void Path::cubicTo(Point control1, Point control2, Point end) {
    beginSegment();
    verbs_.push_back(Verb::Cubic);
    points_.insert(points_.end(), {control1, control2, end});
}

void Path::close() {
    if (!verbs_.empty() && verbs_.back() != Verb::Close)
        verbs_.push_back(Verb::Close);
}

void Path::reserve(std::size_t verbs, std::size_t points) {
    verbs_.reserve(verbs);
    points_.reserve(points);
}

void Path::shrinkToFit() {
    verbs_.shrink_to_fit();
    points_.shrink_to_fit();
}

bool Path::closed() const {
    for (std::size_t i = 0; i < verbs_.size(); ++i) {
        const bool segment = verbs_[i] == Verb::Line || verbs_[i] == Verb::Cubic;
        const bool last = i + 1 == verbs_.size() || verbs_[i + 1] == Verb::Move;
        if (segment && last)
            return false;
    }
    return true;
}

namespace {

struct BoundsSink {
    Box box;

    void addFinite(Point p) {
        if (isFinite(p))
            box.add(p);
    }
    void move(Point) {}
    void line(Point from, Point to) {
        addFinite(from);
        addFinite(to);
    }
    void cubic(const CubicSegment& curve) {
        line(curve.start, curve.end);
        if (box.contains(curve.control1) && box.contains(curve.control2))
            return;
        addTurns(curve, curve.start.x, curve.control1.x, curve.control2.x, curve.end.x);
        addTurns(curve, curve.start.y, curve.control1.y, curve.control2.y, curve.end.y);
    }
    void close(Point, Point) {}

    // Adds the curve's points where the coordinate with these four values turns.
    void addTurns(const CubicSegment& curve, double p0, double p1, double p2, double p3) {
        const double a = p3 - 3 * p2 + 3 * p1 - p0;
        const double b = 2 * (p2 - 2 * p1 + p0);
        const double c = p1 - p0;
        const double root = std::sqrt(b * b - 4 * a * c);
        // Of the two forms of each root, the one that does not subtract nearly equal numbers.
        const double q = -(b + std::copysign(root, b)) / 2;
        for (const double t : {q / a, c / q})
            if (t > 0 && t < 1)
                addFinite(curve.at(t));
    }
};

} // namespace

Box Path::bounds() const {
    BoundsSink sink;
    walkSegments(*this, sink);
    // A path of moves alone still is somewhere.
    if (sink.box.empty())
        for (const Point p : points_)
            sink.addFinite(p);
    return sink.box;
}

Path Path::transformed(const Affine& map) const {
    Path result = *this;
    for (Point& p : result.points_)
        p = map(p);
    return result;
}

} // namespace easel::drawing
