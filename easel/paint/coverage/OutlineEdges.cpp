// Flattening of outlines in surface coordinates, straight into the rasteriser.
#include "easel/paint/coverage/OutlineEdges.h"

#include "easel/drawing/Segments.h"

namespace easel::paint {

namespace {

using drawing::Affine;
using drawing::Point;

constexpr double kTolerance = 0.02; // pixels
constexpr int kMostLines = 1000;    // for a curve

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
        drawing::flattenCubic(
            {last_, control1, control2, end}, kTolerance, [this](Point, Point to) { lineTo(to); },
            kMostLines);
    }
    void close() {
        if (down_)
            rasteriser_.addEdge(last_, first_);
        last_ = first_;
        down_ = false;
    }
    Point first() const { return first_; }

  private:
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
