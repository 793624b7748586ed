// Points, boxes and affine maps of the drawing: horizontal coordinate first, vertical axis downwards.
#pragma once

#include "host/Geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace easel::drawing {

// A point in drawing coordinates; one unit is one screen pixel at scale 1.
struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
    friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend Point operator*(Point a, double factor) { return {a.x * factor, a.y * factor}; }
};

inline double dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}
// Above 0 if the shorter turn from a to b is clockwise as seen on the screen.
inline double cross(Point a, Point b) {
    return a.x * b.y - a.y * b.x;
}
inline double length(Point a) {
    return std::hypot(a.x, a.y);
}
inline Point midpoint(Point a, Point b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}
inline bool isFinite(Point a) {
    return std::isfinite(a.x) && std::isfinite(a.y);
}

// A rectangle parallel to the axes. A default box is empty: it holds no point, and adding a point makes it
// that point.
struct Box {
    double left = std::numeric_limits<double>::infinity();
    double top = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();

    friend bool operator==(const Box&, const Box&) = default;

    bool empty() const { return !(left <= right && top <= bottom); }
    double width() const { return empty() ? 0 : right - left; }
    double height() const { return empty() ? 0 : bottom - top; }
    Point centre() const { return {(left + right) / 2, (top + bottom) / 2}; }

    bool contains(Point p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
    // Boxes that share only an edge overlap too.
    bool overlaps(const Box& other) const {
        return left <= other.right && other.left <= right && top <= other.bottom && other.top <= bottom;
    }

    void add(Point p) {
        left = std::min(left, p.x);
        top = std::min(top, p.y);
        right = std::max(right, p.x);
        bottom = std::max(bottom, p.y);
    }
    void add(const Box& other) {
        left = std::min(left, other.left);
        top = std::min(top, other.top);
        right = std::max(right, other.right);
        bottom = std::max(bottom, other.bottom);
    }
    // The box with each side moved outwards by `margin`; an empty box stays empty.
    Box grownBy(double margin) const {
        return empty() ? *this : Box{left - margin, top - margin, right + margin, bottom + margin};
    }
    Box intersection(const Box& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }
};

// x' = a x + c y + e, y' = b x + d y + f: the order of the six numbers in an SVG matrix.
struct Affine {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    friend bool operator==(const Affine&, const Affine&) = default;

    Point operator()(Point p) const { return {a * p.x + c * p.y + e, b * p.x + d * p.y + f}; }
    // Maps a difference of points: the translation does not take part.
    Point direction(Point p) const { return {a * p.x + c * p.y, b * p.x + d * p.y}; }
    double determinant() const { return a * d - b * c; }
    bool invertible() const {
        const double det = determinant();
        return std::isfinite(det) && det != 0 && std::isfinite(e) && std::isfinite(f);
    }
    // The identity if the map cannot be inverted.
    Affine inverse() const {
        if (!invertible())
            return {};
        const double det = determinant();
        return {d / det, -b / det, -c / det, a / det, (c * f - d * e) / det, (b * e - a * f) / det};
    }
    // The largest factor by which the map stretches any length.
    double largestScale() const {
        const double sum = a * a + b * b + c * c + d * d;
        const double det = determinant();
        return std::sqrt((sum + std::sqrt(std::max(0.0, sum * sum - 4 * det * det))) / 2);
    }

    static Affine translation(double x, double y) { return {1, 0, 0, 1, x, y}; }
    static Affine scaling(double x, double y) { return {x, 0, 0, y, 0, 0}; }
    // Turns (1, 0) into (cos a, sin a); exact at whole quarter turns.
    static Affine rotation(double degrees) {
        const CosSin turn(degrees);
        return {turn.cos, turn.sin, -turn.sin, turn.cos, 0, 0};
    }
};

// outer * inner applies `inner` first.
inline Affine operator*(const Affine& outer, const Affine& inner) {
    return {outer.a * inner.a + outer.c * inner.b,           outer.b * inner.a + outer.d * inner.b,
            outer.a * inner.c + outer.c * inner.d,           outer.b * inner.c + outer.d * inner.d,
            outer.a * inner.e + outer.c * inner.f + outer.e, outer.b * inner.e + outer.d * inner.f + outer.f};
}

// Maps the unit square onto the box: its lengths become shares of the box's sides.
inline Affine boxUnits(const Box& box) {
    return {box.width(), 0, 0, box.height(), box.left, box.top};
}

// The box around what the map makes of a box; empty for an empty one.
inline Box boxUnder(const Box& box, const Affine& map) {
    Box mapped;
    if (!box.empty())
        for (const Point corner : {Point{box.left, box.top}, Point{box.right, box.top},
                                   Point{box.left, box.bottom}, Point{box.right, box.bottom}})
            mapped.add(map(corner));
    return mapped;
}

} // namespace easel::drawing
