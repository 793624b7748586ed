// The paths of rectangles and ellipses.
#include "easel/drawing/Path.h"

namespace easel::drawing {

namespace {

// Where the controls of a quarter of a circle lie, so that the curve meets the circle in the middle too.
constexpr double kArc = 0.5522847498307936;

} // namespace

Path rectanglePath(const Box& box) {
    return polygonPath(
        {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}});
}

Path roundedRectanglePath(const Box& box, double radiusX, double radiusY) {
    const double rx = std::min(radiusX, box.width() / 2);
    const double ry = std::min(radiusY, box.height() / 2);
    if (!(rx > 0 && ry > 0))
        return rectanglePath(box);
    const double kx = rx * (1 - kArc);
    const double ky = ry * (1 - kArc);
    Path path;
    path.reserve(10, 17);
    path.moveTo({box.left + rx, box.top});
    path.lineTo({box.right - rx, box.top});
    path.cubicTo({box.right - kx, box.top}, {box.right, box.top + ky}, {box.right, box.top + ry});
    path.lineTo({box.right, box.bottom - ry});
    path.cubicTo({box.right, box.bottom - ky}, {box.right - kx, box.bottom}, {box.right - rx, box.bottom});
    path.lineTo({box.left + rx, box.bottom});
    path.cubicTo({box.left + kx, box.bottom}, {box.left, box.bottom - ky}, {box.left, box.bottom - ry});
    path.lineTo({box.left, box.top + ry});
    path.cubicTo({box.left, box.top + ky}, {box.left + kx, box.top}, {box.left + rx, box.top});
    path.close();
    return path;
}

Path ellipsePath(Point centre, double radiusX, double radiusY) {
    const double kx = radiusX * kArc;
    const double ky = radiusY * kArc;
    const auto [x, y] = centre;
    Path path;
    path.reserve(6, 13);
    path.moveTo({x + radiusX, y});
    path.cubicTo({x + radiusX, y + ky}, {x + kx, y + radiusY}, {x, y + radiusY});
    path.cubicTo({x - kx, y + radiusY}, {x - radiusX, y + ky}, {x - radiusX, y});
    path.cubicTo({x - radiusX, y - ky}, {x - kx, y - radiusY}, {x, y - radiusY});
    path.cubicTo({x + kx, y - radiusY}, {x + radiusX, y - ky}, {x + radiusX, y});
    path.close();
    return path;
}

Path polylinePath(const std::vector<Point>& points) {
    Path path;
    path.reserve(points.size() + 1, points.size());
    for (const Point p : points) {
        if (path.empty())
            path.moveTo(p);
        else
            path.lineTo(p);
    }
    return path;
}

Path polygonPath(const std::vector<Point>& points) {
    Path path = polylinePath(points);
    path.close();
    return path;
}

} // namespace easel::drawing
