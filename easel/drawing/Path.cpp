#include "easel/drawing/Path.h"

#include "easel/drawing/Segments.h"

#include <algorithm>
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
    if (!empty() && verbs().back() == Verb::Move)
        memory_.ownPoints().back() = p;
    else
        memory_.add(Verb::Move, {p});
}

void Path::beginSegment() {
    if (empty())
        moveTo({});
    else if (verbs().back() == Verb::Close)
        moveTo(subpathStart());
}

Point Path::subpathStart() const {
    const VerbList all = verbs();
    const Point* start = points().data() + points().size();
    for (std::size_t i = all.size(); i-- > 0;) {
        start -= pointCount(all[i]);
        if (all[i] == Verb::Move)
            break;
    }
    return *start;
}

void Path::lineTo(Point p) {
    beginSegment();
    memory_.add(Verb::Line, {p});
}

void Path::cubicTo(Point control1, Point control2, Point end) {
    beginSegment();
    memory_.add(Verb::Cubic, {control1, control2, end});
}

void Path::close() {
    if (!empty() && verbs().back() != Verb::Close)
        memory_.add(Verb::Close, {});
}

void Path::reserve(std::size_t verbs, std::size_t points) {
    memory_.setRoom(verbs, points);
}

void Path::shrinkToFit() {
    memory_.setRoom(0, 0);
}

bool Path::closed() const {
    const VerbList all = verbs();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const bool segment = all[i] == Verb::Line || all[i] == Verb::Cubic;
        const bool last = i + 1 == all.size() || all[i + 1] == Verb::Move;
        if (segment && last)
            return false;
    }
    return true;
}

bool operator==(const Path& a, const Path& b) {
    return std::equal(a.verbs().begin(), a.verbs().end(), b.verbs().begin(), b.verbs().end()) &&
           std::equal(a.points().begin(), a.points().end(), b.points().begin(), b.points().end());
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
        for (const Point p : points())
            sink.addFinite(p);
    return sink.box;
}

Path Path::transformed(const Affine& map) const {
    Path result = *this;
    result.transform(map);
    return result;
}

void Path::transform(const Affine& map) {
    if (map == Affine())
        return;
    for (Point& p : memory_.ownPoints())
        p = map(p);
}

} // namespace easel::drawing
