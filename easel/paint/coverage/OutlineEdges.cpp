// Flattening of outlines in surface coordinates, straight into the rasteriser.
#include "easel/paint/coverage/OutlineEdges.h"

#include "easel/drawing/Segments.h"
#include "easel/paint/coverage/LineRanges.h"

#include <algorithm>

namespace easel::paint {

namespace {

using drawing::Affine;
using drawing::Point;

constexpr double kTolerance = 0.02; // pixels
constexpr int kMostLines = 1000;    // for a curve
// From so many on it pays to ask which of them are seen.
constexpr int kManyLines = 16;

// Joins the points given to it into one polygon after the other, each ended by `close`.
class Pen {
  public:
    explicit Pen(Rasteriser& rasteriser) : rasteriser_(rasteriser) {}

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
        const auto [top, bottom] = std::minmax({last_.y, control1.y, control2.y, end.y});
        if (bottom <= rasteriser_.top() || top >= rasteriser_.bottom())
            return lineTo(end);
        const drawing::CubicSegment curve{last_, control1, control2, end};
        const int lines = drawing::linesFor(curve, kTolerance, kMostLines);
        if (lines < kManyLines)
            return linesTo(curve, {0, lines}, lines);
        const LineRanges seen(curve, lines, rasteriser_.top(), rasteriser_.bottom());
        for (const LineRange& range : seen.ranges())
            linesTo(curve, range, lines);
        last_ = end;
    }
    void close() {
        if (down_)
            rasteriser_.addEdge(last_, first_);
        last_ = first_;
        down_ = false;
    }
    Point first() const { return first_; }

  private:
    void linesTo(const drawing::CubicSegment& curve, LineRange range, int lines) {
        if (range.first > 0)
            last_ = curve.at(static_cast<double>(range.first) / lines);
        for (int i = range.first + 1; i <= range.end; ++i)
            lineTo(i == lines ? curve.end : curve.at(static_cast<double>(i) / lines));
    }

    Rasteriser& rasteriser_;
    Point first_;
    Point last_;
    bool down_ = false;
};

} // namespace

void addOutline(Rasteriser& rasteriser, const drawing::Path& shape, const Affine& toSurface,
                std::size_t mostEdges) {
    Pen pen(rasteriser);
    auto point = shape.points().begin();
    const auto next = [&] { return toSurface(*point++); };
    for (const drawing::Verb verb : shape.verbs()) {
        if (rasteriser.edgeCount() > mostEdges)
            return;
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
    pen.close();
}

void addPolygon(Rasteriser& rasteriser, std::span<const Point> corners, const Affine& toSurface) {
    Pen pen(rasteriser);
    for (const Point& corner : corners)
        pen.lineTo(toSurface(corner));
    pen.close();
}

} // namespace easel::paint
