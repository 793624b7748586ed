// Geometry of the measured fills.
#include "benchmarks/PixelWork.h"

#include <cmath>
#include <numbers>

namespace bench {

namespace {

using namespace easel;
using drawing::Point;

const Point kCentre{kWidth / 2.0, kHeight / 2.0};

// At 30 degrees, over exactly the surface.
drawing::LinearGeometry obliqueLine() {
    const double angle = std::numbers::pi / 6;
    const Point direction{std::cos(angle), std::sin(angle)};
    const double half = (kWidth * direction.x + kHeight * direction.y) / 2;
    return {kCentre - direction * half, kCentre + direction * half};
}

// Inner and outer radii are parts of the surface's half width and height.
drawing::Path roundPolygon(int vertices, double inner) {
    std::vector<Point> points;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 2 * std::numbers::pi * i / vertices;
        const double part = i % 2 == 0 ? 0.97 : inner;
        points.push_back(
            {kCentre.x * (1 + part * std::cos(angle)), kCentre.y * (1 + part * std::sin(angle))});
    }
    return drawing::polygonPath(points);
}

drawing::Gradient padded(const std::variant<drawing::LinearGeometry, drawing::RadialGeometry>& geometry,
                         int stops) {
    return {geometry, {}, drawing::Spread::Pad, rampOf(stops)};
}

} // namespace

drawing::Ramp rampOf(int stops) {
    std::vector<drawing::RampStop> list;
    list.reserve(static_cast<std::size_t>(stops));
    unsigned seed = 7;
    const auto channel = [&] {
        seed = seed * 1103515245 + 12345;
        return static_cast<std::uint16_t>(seed >> 8);
    };
    for (int i = 0; i < stops; ++i)
        list.push_back({static_cast<double>(i) / (stops - 1), {channel(), channel(), channel()}, 1});
    return drawing::Ramp(std::move(list));
}

std::vector<PixelWork> pixelWorks() {
    const double corner = std::hypot(kCentre.x, kCentre.y);
    const drawing::RadialGeometry toCorner{kCentre, 0, kCentre, corner};
    const drawing::RadialGeometry twoCircles{{1500, 900}, 100, kCentre, corner};
    return {
        {"linear 2 stops at 30 degrees", 16, padded(obliqueLine(), 2), {}},
        {"linear 16 stops", 16, padded(obliqueLine(), 16), {}},
        {"linear 1,000 stops", 14, padded(obliqueLine(), 1000), {}},
        {"radial 2 stops", 20, padded(toCorner, 2), {}},
        {"two-circle radial 16 stops", 18, padded(twoCircles, 16), {}},
        {"500-vertex ellipse, 5 stops", 10, padded(obliqueLine(), 5), roundPolygon(500, 0.97)},
        {"500-vertex star, 5 stops", 7.5, padded(obliqueLine(), 5), roundPolygon(500, 0.7)},
    };
}

std::vector<SmallFill> smallStars(int count) {
    std::vector<SmallFill> fills;
    for (int i = 0; i < count; ++i) {
        const Point centre{30 + i * 7919 % 37800 / 10.0, 30 + i * 10473 % 21000 / 10.0};
        std::vector<Point> points;
        for (int k = 0; k < 10; ++k) {
            const double angle = k * std::numbers::pi / 5 + i;
            points.push_back(centre + Point{std::cos(angle), std::sin(angle)} * (k % 2 == 0 ? 20 : 8));
        }
        const Point way = Point{std::cos(i), std::sin(i)} * 20;
        fills.push_back(
            {drawing::polygonPath(points), padded(drawing::LinearGeometry{centre - way, centre + way}, 3)});
    }
    return fills;
}

} // namespace bench
