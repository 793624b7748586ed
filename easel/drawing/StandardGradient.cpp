// The standard form of the tool's gradients, and whether a file's gradient still is that form.
#include "easel/drawing/StandardGradient.h"

#include "easel/drawing/GradientFit.h"

#include <algorithm>
#include <cmath>

namespace easel::drawing {

namespace {

// Positions of stops, opacities, and the share of its size by which a geometry may be off and count as the
// same.
constexpr double kStopRounding = 1e-6;
constexpr double kGeometryRounding = 1e-5;

bool alike(const Ramp& a, const Ramp& b) {
    const auto same = [](const RampStop& x, const RampStop& y) {
        return x.color == y.color && std::abs(x.opacity - y.opacity) <= kStopRounding &&
               std::abs(x.position - y.position) <= kStopRounding;
    };
    return std::equal(a.stops().begin(), a.stops().end(), b.stops().begin(), b.stops().end(), same);
}

// Points in drawing coordinates that fix where the gradient runs: the ends of the line and a point across
// from its start; for circles their centres and a point of the start circle.
std::vector<Point> marksOf(const Gradient& gradient) {
    const Affine& map = gradient.toDrawing;
    if (const auto* const line = std::get_if<LinearGeometry>(&gradient.geometry))
        return {map(line->start), map(line->end),
                map(line->start + Point{line->start.y - line->end.y, line->end.x - line->start.x})};
    const auto& circles = std::get<RadialGeometry>(gradient.geometry);
    return {map(circles.focus), map(circles.centre), map(circles.focus + Point{circles.focusRadius, 0})};
}

// The ellipse that the end circle is in the drawing, as the numbers of its matrix: the same whatever way the
// circle was turned before.
std::vector<double> shapeOf(const Gradient& gradient) {
    const auto* const circles = std::get_if<RadialGeometry>(&gradient.geometry);
    if (!circles)
        return {};
    const Affine& map = gradient.toDrawing;
    const double square = circles->radius * circles->radius;
    return {(map.a * map.a + map.c * map.c) * square, (map.a * map.b + map.c * map.d) * square,
            (map.b * map.b + map.d * map.d) * square};
}

} // namespace

std::optional<Gradient> standardGradient(const CGradientData& record, const Remainder* remainder,
                                         const Path& outline) {
    if (record.ColorList().empty())
        return std::nullopt;
    Gradient gradient = fitGradient(record, remainder, outline);
    const std::vector<Point> marks = marksOf(gradient);
    const auto* const circles = std::get_if<RadialGeometry>(&gradient.geometry);
    if (!std::all_of(marks.begin(), marks.end(), isFinite) || (circles && !std::isfinite(circles->radius)))
        return std::nullopt;
    gradient.ramp = gradient.ramp.within(0, 1);
    return gradient;
}

bool alike(const Gradient& a, const Gradient& b) {
    if (!alike(a.ramp, b.ramp) || a.spread != b.spread || a.geometry.index() != b.geometry.index())
        return false;
    const std::vector<Point> first = marksOf(a);
    const std::vector<Point> second = marksOf(b);
    const std::vector<double> firstShape = shapeOf(a);
    const std::vector<double> secondShape = shapeOf(b);
    double size = 1;
    double off = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        size += length(first[i]);
        off += length(first[i] - second[i]);
    }
    double square = 1;
    double squareOff = 0;
    for (std::size_t i = 0; i < firstShape.size(); ++i) {
        square += std::abs(firstShape[i]);
        squareOff += std::abs(firstShape[i] - secondShape[i]);
    }
    return off <= kGeometryRounding * size && squareOff <= kGeometryRounding * square;
}

} // namespace easel::drawing
