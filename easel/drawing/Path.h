// Outlines made of lines and cubic curves, and what is asked of them: bounds, polygons, whether a point is
// inside.
#pragma once

#include "easel/drawing/PathMemory.h"

#include <cstdint>
#include <span>
#include <vector>

namespace easel::drawing {

enum class FillRule : std::uint8_t { NonZero, EvenOdd };

// Copies share their memory until one of them changes.
class Path {
  public:
    void moveTo(Point p);
    // A line or curve without a move before it, or right after a close, starts where the last subpath began.
    void lineTo(Point p);
    void cubicTo(Point control1, Point control2, Point end);
    void close();
    // Room for so many verbs and points in all.
    void reserve(std::size_t verbs, std::size_t points);
    void shrinkToFit();

    bool empty() const { return verbs().empty(); }
    VerbList verbs() const { return memory_.verbs(); }
    std::span<const Point> points() const { return memory_.points(); }
    // True when every subpath that has a segment ends with a close.
    bool closed() const;

    // Exact for the curves themselves: control points outside the curve do not widen it. Points that are not
    // finite are left out.
    Box bounds() const;
    Path transformed(const Affine& map) const;
    // The same in the path's own memory, unless copies share it.
    void transform(const Affine& map);

    friend bool operator==(const Path& a, const Path& b);

  private:
    void beginSegment();
    Point subpathStart() const;

    PathMemory memory_;
};

// One subpath as a polygon. `closed` tells whether the outline returns to its first point; a fill closes it
// anyway.
struct Contour {
    std::vector<Point> points;
    bool closed = false;
};

// The path as polygons that stray at most `tolerance` (drawing units, above 0) from it. A closed contour does
// not repeat its first point. Subpaths of a single point are left out.
std::vector<Contour> flatten(const Path& path, double tolerance);

// Whether the point is inside the filled path; open subpaths count as closed.
bool contains(const Path& path, FillRule rule, Point p);

// Whether some point of the outline (as it would be stroked, so open subpaths stay open) is within
// `distance`.
bool outlineWithin(const Path& path, Point p, double distance);

// Ready-made outlines. The ellipse is four cubics, accurate to 0.03 % of the radius.
Path rectanglePath(const Box& box);
Path roundedRectanglePath(const Box& box, double radiusX, double radiusY);
Path ellipsePath(Point centre, double radiusX, double radiusY);
Path polygonPath(const std::vector<Point>& points);
Path polylinePath(const std::vector<Point>& points);

} // namespace easel::drawing
