// The plain evaluation and what is compared with it.
#include "benchmarks/PixelAccuracy.h"

#include "benchmarks/PixelWork.h"
#include "easel/paint/Painter.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace bench {

namespace {

using namespace easel;
using drawing::Point;
constexpr double kLargestError = 0.51;
using Color = std::array<double, 4>; // blue, green, red in levels, opacity

double parameterAt(const drawing::LinearGeometry& line, Point p) {
    const Point axis = line.end - line.start;
    return dot(p - line.start, axis) / dot(axis, axis);
}

// The start circle lies inside the end circle.
double parameterAt(const drawing::RadialGeometry& circles, Point p) {
    const Point step = circles.centre - circles.focus;
    const double grow = circles.radius - circles.focusRadius;
    const Point q = p - circles.focus;
    const double a = dot(step, step) - grow * grow;
    const double b = dot(q, step) + circles.focusRadius * grow;
    const double c = dot(q, q) - circles.focusRadius * circles.focusRadius;
    return (b - std::sqrt(b * b - a * c)) / a;
}

Color exactly(const drawing::RampStop& stop) {
    return {stop.color.blue / 257.0, stop.color.green / 257.0, stop.color.red / 257.0, stop.opacity};
}

Color colorAt(const std::vector<drawing::RampStop>& stops, double t) {
    const auto upper = std::upper_bound(stops.begin(), stops.end(), t,
                                        [](double value, const auto& stop) { return value < stop.position; });
    if (upper == stops.begin())
        return exactly(stops.front());
    const Color low = exactly(*(upper - 1));
    if (upper == stops.end())
        return low;
    const Color high = exactly(*upper);
    const double part = (t - (upper - 1)->position) / (upper->position - (upper - 1)->position);
    Color result;
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = low[i] + (high[i] - low[i]) * part;
    return result;
}

// A side's part of the signed area of a polygon within a pixel: the integral, along the side, of how much of
// the pixel lies right of it.
double sideArea(Point a, Point b, int x, int y) {
    const double sign = a.y < b.y ? 1 : -1;
    if (a.y > b.y)
        std::swap(a, b);
    const double top = std::max(a.y, static_cast<double>(y));
    const double bottom = std::min(b.y, y + 1.0);
    if (top >= bottom)
        return 0;
    // The trapezoid rule is exact between the heights where the side passes the pixel's left and right
    // border.
    const double slope = (b.x - a.x) / (b.y - a.y);
    const auto rest = [&](double height) {
        return std::clamp(x + 1 - (a.x + slope * (height - a.y)), 0.0, 1.0);
    };
    std::array<double, 4> cuts{top, bottom, bottom, bottom};
    if (slope != 0) {
        cuts[1] = std::clamp(a.y + (x - a.x) / slope, top, bottom);
        cuts[2] = std::clamp(a.y + (x + 1 - a.x) / slope, top, bottom);
    }
    std::sort(cuts.begin(), cuts.end());
    double area = 0;
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i)
        area += (cuts[i + 1] - cuts[i]) * (rest(cuts[i]) + rest(cuts[i + 1])) / 2;
    return sign * area;
}

} // namespace

Accuracy accuracyOf(const paint::Surface& surface, const drawing::Gradient& gradient,
                    std::uint32_t background) {
    Accuracy accuracy;
    const drawing::Affine toGradient = gradient.toDrawing.inverse();
    for (int y = 0; y < surface.height(); ++y) {
        for (int x = 0; x < surface.width(); ++x) {
            const Point centre = toGradient({x + 0.5, y + 0.5});
            const double t = std::visit([&](const auto& geometry) { return parameterAt(geometry, centre); },
                                        gradient.geometry);
            const Color color = colorAt(gradient.ramp.stops(), t);
            double error = 0;
            for (unsigned i = 0; i < 3; ++i) {
                const double below = background >> 8 * i & 0xFF;
                const double wanted = color[i] * color[3] + below * (1 - color[3]);
                error = std::max(error, std::abs(wanted - (surface.row(y)[x] >> 8 * i & 0xFF)));
            }
            accuracy.largestError = std::max(accuracy.largestError, error);
            accuracy.offByMoreThanOne += error > 1 ? 1 : 0;
        }
    }
    return accuracy;
}

void checkExactness(Report& report, const std::string& table, paint::Surface& surface,
                    const std::string& name, const drawing::Gradient& gradient, std::uint32_t background) {
    surface.clear(background);
    paint::Painter().fillAll(surface.view(), {}, &gradient);
    const Accuracy accuracy = accuracyOf(surface, gradient, background);
    report.add(table, {name, "largest error", accuracy.largestError, "levels", kLargestError, Better::Lower});
    // A goal of 0 would mean none.
    report.add(table, {name, "pixels off by more than 1", static_cast<double>(accuracy.offByMoreThanOne), "",
                       0.5, Better::Lower});
}

double coverageError(const drawing::Path& polygon, int top, int bottom) {
    paint::Surface surface(kWidth, kHeight);
    surface.clear(0xFF000000);
    paint::Painter().fill(surface.view(), polygon, drawing::FillRule::NonZero, {},
                          drawing::ColorPaint{{65535, 65535, 65535}, 1});
    const std::span<const Point> points = polygon.points();
    double largest = 0;
    for (int y = top; y < bottom; ++y) {
        std::vector<double> area(kWidth);
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Point a = points[i];
            const Point b = points[(i + 1) % points.size()];
            if (std::max(a.y, b.y) > y && std::min(a.y, b.y) < y + 1)
                for (int x = 0; x < kWidth; ++x)
                    area[static_cast<std::size_t>(x)] += sideArea(a, b, x, y);
        }
        for (int x = 0; x < kWidth; ++x)
            largest = std::max(largest, std::abs(std::abs(area[static_cast<std::size_t>(x)]) * 255 -
                                                 (surface.row(y)[x] & 0xFF)));
    }
    return largest;
}

int misplacedJumps() {
    constexpr drawing::Rgb16 kWhite{65535, 65535, 65535};
    paint::Surface surface(kWidth, 1);
    int misplaced = 0;
    for (int x = 1; x < kWidth; x += 3) {
        // Pixel x has its centre at x + 0.5, just beyond the jump.
        const double position = (x + 0.499) / kWidth;
        const drawing::Gradient gradient{
            drawing::LinearGeometry{{0, 0}, {kWidth, 0}},
            {},
            drawing::Spread::Pad,
            drawing::Ramp({{0, {}}, {position, {}}, {position, kWhite}, {1, kWhite}})};
        paint::Painter().fillAll(surface.view(), {}, &gradient);
        const std::uint32_t* row = surface.row(0);
        misplaced += row[x - 1] == 0xFF000000 && row[x] == 0xFFFFFFFF ? 0 : 1;
    }
    return misplaced;
}

} // namespace bench
