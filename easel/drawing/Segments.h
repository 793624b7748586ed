// Walks the segments of a path, with curves whole or cut into lines.
#pragma once

#include "easel/drawing/Path.h"

namespace easel::drawing {

struct CubicSegment {
    Point start, control1, control2, end;

    Point at(double t) const {
        const double s = 1 - t;
        return start * (s * s * s) + control1 * (3 * s * s * t) + control2 * (3 * s * t * t) +
               end * (t * t * t);
    }
    // Holds the curve, though not tightly.
    Box hull() const {
        Box box;
        for (const Point p : {start, control1, control2, end})
            box.add(p);
        return box;
    }
};

constexpr int kMostLines = 1 << 14;

// How many lines of equal parameter length stay within `tolerance` of the curve, but at most `most`.
int linesFor(const CubicSegment& curve, double tolerance, int most = kMostLines);

// Calls sink.move(p), sink.line(from, to), sink.cubic(segment) and sink.close(from, start) in the path's
// order.
template <class Sink> void walkSegments(const Path& path, Sink& sink) {
    Point start, current;
    const Point* next = path.points().data();
    for (const Verb verb : path.verbs()) {
        switch (verb) {
        case Verb::Move:
            start = current = *next++;
            sink.move(start);
            break;
        case Verb::Line:
            sink.line(current, *next);
            current = *next++;
            break;
        case Verb::Cubic:
            sink.cubic(CubicSegment{current, next[0], next[1], next[2]});
            current = next[2];
            next += 3;
            break;
        case Verb::Close:
            sink.close(current, start);
            current = start;
            break;
        }
    }
}

// Calls visit(from, to) for each line of the flattened curve; the last one ends exactly at the curve's end.
template <class Visitor>
void flattenCubic(const CubicSegment& curve, double tolerance, Visitor visit, int most = kMostLines) {
    const int lines = linesFor(curve, tolerance, most);
    Point from = curve.start;
    for (int i = 1; i <= lines; ++i) {
        const Point to = i == lines ? curve.end : curve.at(static_cast<double>(i) / lines);
        visit(from, to);
        from = to;
    }
}

} // namespace easel::drawing
