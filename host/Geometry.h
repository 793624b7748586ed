// Points, rectangles, lines and polygons.
//
// A point is stored vertical coordinate first but is built and set from (horizontal, vertical). The vertical
// axis points down. Angles are degrees; turning by an angle a takes the direction (1, 0) to (cos a, sin a),
// both written (horizontal, vertical).
#pragma once

#include <cmath>
#include <numbers>

#pragma GCC visibility push(default)

/// The point (cos a, sin a), exact at whole multiples of 90 degrees.
struct CosSin {
    double cos;
    double sin;

    explicit CosSin(double degrees) {
        double const quarter = std::remainder(degrees, 360.0) / 90.0;
        if (quarter == std::trunc(quarter)) {
            // remainder() leaves -180 to 180, so the quarter turn is one of -2, -1, 0, 1, 2.
            sin = quarter == 1.0 || quarter == -1.0 ? quarter : 0.0;
            cos = quarter == 0.0 ? 1.0 : (sin == 0.0 ? -1.0 : 0.0);
            return;
        }
        double const radians = degrees * (std::numbers::pi / 180.0);
        cos = std::cos(radians);
        sin = std::sin(radians);
    }
};

/// A point: `double` in drawing coordinates, `short` in pixels of a screen, window or dialog.
template <typename T> struct TPoint {
    T v{};
    T h{};

    TPoint() = default;
    TPoint(T horizontal, T vertical) : v(vertical), h(horizontal) {}
    /// The same point in another number type, each coordinate converted on its own.
    template <typename U>
    explicit TPoint(TPoint<U> const& other) : v(static_cast<T>(other.v)), h(static_cast<T>(other.h)) {}

    void Set(T horizontal, T vertical) {
        h = horizontal;
        v = vertical;
    }

    /// Turns the point about `centre`, in place.
    void Rotate(double degrees, TPoint const& centre) {
        CosSin const turn(degrees);
        auto const dh = static_cast<double>(h - centre.h);
        auto const dv = static_cast<double>(v - centre.v);
        h = static_cast<T>(centre.h + dh * turn.cos - dv * turn.sin);
        v = static_cast<T>(centre.v + dh * turn.sin + dv * turn.cos);
    }

    friend TPoint operator+(TPoint a, TPoint b) {
        return {static_cast<T>(a.h + b.h), static_cast<T>(a.v + b.v)};
    }
    friend TPoint operator-(TPoint a, TPoint b) {
        return {static_cast<T>(a.h - b.h), static_cast<T>(a.v - b.v)};
    }
    /// The product of each coordinate with its counterpart.
    friend TPoint operator*(TPoint a, TPoint b) {
        return {static_cast<T>(a.h * b.h), static_cast<T>(a.v * b.v)};
    }
    friend bool operator==(TPoint const&, TPoint const&) = default;
};

/// A rectangle: top, left, bottom, right.
template <typename T> struct TRect {
    T top{};
    T left{};
    T bottom{};
    T right{};

    TRect() = default;
    TRect(T topEdge, T leftEdge, T bottomEdge, T rightEdge)
        : top(topEdge), left(leftEdge), bottom(bottomEdge), right(rightEdge) {}
    /// The same rectangle in another number type, each edge converted on its own.
    template <typename U>
    explicit TRect(TRect<U> const& other)
        : top(static_cast<T>(other.top)), left(static_cast<T>(other.left)),
          bottom(static_cast<T>(other.bottom)), right(static_cast<T>(other.right)) {}

    [[nodiscard]] T Width() const { return static_cast<T>(right - left); }
    [[nodiscard]] T Height() const { return static_cast<T>(bottom - top); }
    /// Width and height as a point.
    [[nodiscard]] TPoint<T> GetSize() const { return {Width(), Height()}; }
    [[nodiscard]] TPoint<T> TopLeft() const { return {left, top}; }
    [[nodiscard]] TPoint<T> TopRight() const { return {right, top}; }
    [[nodiscard]] TPoint<T> BottomRight() const { return {right, bottom}; }
    [[nodiscard]] TPoint<T> BottomLeft() const { return {left, bottom}; }
    [[nodiscard]] TPoint<T> MidPt() const {
        return {static_cast<T>((left + right) / 2), static_cast<T>((top + bottom) / 2)};
    }

    /// Moves the left and right edges inwards by `horizontal` each, the top and bottom edges by `vertical`
    /// each.
    void Inset(T horizontal, T vertical) {
        top = static_cast<T>(top + vertical);
        left = static_cast<T>(left + horizontal);
        bottom = static_cast<T>(bottom - vertical);
        right = static_cast<T>(right - horizontal);
    }
    /// The opposite of Inset.
    void Outset(T horizontal, T vertical) { Inset(static_cast<T>(-horizontal), static_cast<T>(-vertical)); }

    friend bool operator==(TRect const&, TRect const&) = default;
};

/// Distance between two points.
[[nodiscard]] inline double LineLength(TPoint<double> const& a, TPoint<double> const& b) {
    return std::hypot(b.h - a.h, b.v - a.v);
}

/// A line from a start point to an end point.
template <typename T> struct TLine {
    TPoint<T> start;
    TPoint<T> end;

    TLine() = default;
    TLine(TPoint<T> const& from, TPoint<T> const& to) : start(from), end(to) {}

    /// Direction from start to end in degrees, above -180 up to 180; 0 for a line of no length. Clockwise as
    /// seen on the screen, since the vertical axis points down: 90 for a line straight down.
    [[nodiscard]] double Angle() const {
        auto const dh = static_cast<double>(end.h - start.h);
        auto const dv = static_cast<double>(end.v - start.v);
        // atan2 tells apart the two zeros: -0 would lead to a half turn, or to one the other way round.
        return std::atan2(dv + 0.0, dh + 0.0) * (180.0 / std::numbers::pi);
    }
    [[nodiscard]] double Length() const {
        return std::hypot(static_cast<double>(end.h - start.h), static_cast<double>(end.v - start.v));
    }
};

/// Storage of a polygon; the host's.
struct FPolygon;

/// A reference to a polygon. Copies refer to the same polygon and free nothing: whoever made the polygon,
/// with FRectToFPoly or by duplicating another, frees it with KillFPoly.
class CFPolygonRef {
  public:
    /// Refers to a polygon that the host made.
    explicit CFPolygonRef(FPolygon* polygon) : polygon_(polygon) {}
    /// With `duplicate` true a polygon of its own with the same vertices, to be freed with KillFPoly; with
    /// false a second reference to the same polygon.
    CFPolygonRef(CFPolygonRef const& other, bool duplicate);

    /// The smallest rectangle that holds every vertex; all zeros for a polygon without vertices.
    [[nodiscard]] TRect<double> Bounds() const;
    /// The storage, for the host's own use.
    [[nodiscard]] FPolygon* Storage() const { return polygon_; }

  private:
    FPolygon* polygon_;
};

/// A new polygon with the rectangle's corners. The caller frees it with KillFPoly.
[[nodiscard]] CFPolygonRef FRectToFPoly(TRect<double> const& rect);
/// Turns every vertex about `centre`, in place, exactly as TPoint<double>::Rotate turns a point.
void RotateFPoly(CFPolygonRef polygon, double degrees, TPoint<double> const& centre);
/// Frees a polygon; every reference to it is dead afterwards.
void KillFPoly(CFPolygonRef polygon);

/// Moves `point` so that the direction from `anchor` to it is one that the host allows under its constraint
/// key (the nearest multiple of 15 degrees in Easel); the anchor itself is left as it is.
void Restrict(TPoint<double> anchor, TPoint<double>& point);

#pragma GCC visibility pop
