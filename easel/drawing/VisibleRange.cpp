// Which part of its ramp a radial gradient shows on a shape.
#include "easel/drawing/VisibleRange.h"

#include <algorithm>
#include <cmath>

namespace easel::drawing {

namespace {

// The parameter of a family of circles that grow from a point, each inside the next: the k where
// |focus + k shift - p| = k radius.
class ConeParameter {
  public:
    explicit ConeParameter(const RadialGeometry& circles)
        : focus_(circles.focus), shift_(circles.centre - circles.focus),
          growth_(circles.radius * circles.radius - dot(shift_, shift_)) {}

    bool isProper() const { return std::isfinite(growth_) && growth_ > 0; }

    double operator()(Point p) const {
        const Point away = focus_ - p;
        const double b = dot(away, shift_);
        return (b + std::sqrt(b * b + growth_ * dot(away, away))) / growth_;
    }

    // The circles are convex, so that along a line the parameter falls to its least and rises from there.
    double leastBetween(Point a, Point b) const {
        constexpr int kRounds = 40;
        for (int i = 0; i < kRounds; ++i) {
            const Point third = (b - a) * (1.0 / 3);
            if ((*this)(a + third) < (*this)(b - third))
                b = b - third;
            else
                a = a + third;
        }
        return (*this)(a);
    }

  private:
    Point focus_;
    Point shift_;
    double growth_;
};

} // namespace

ParameterRange visibleRange(const RadialGeometry& circles, const Affine& toDrawing,
                            const GradientFrame& frame) {
    constexpr double kFineness = 1e-4;
    const ConeParameter parameter(circles);
    const Path outline = frame.outline.transformed(toDrawing.inverse());
    const Box bounds = outline.bounds();
    const double size = std::max(bounds.width(), bounds.height());
    if (!parameter.isProper() || !(size > 0) || !std::isfinite(size))
        return {};
    const bool fromFocus = frame.inside && contains(outline, *frame.inside, circles.focus);
    ParameterRange range{fromFocus ? 0.0 : 1.0, 0};
    for (const Contour& contour : flatten(outline, size * kFineness)) {
        for (std::size_t i = 0; i < contour.points.size(); ++i) {
            const Point from = contour.points[i];
            range.high = std::max(range.high, parameter(from));
            const bool isLast = i + 1 == contour.points.size();
            if (!fromFocus && (!isLast || contour.closed || frame.inside))
                range.low =
                    std::min(range.low, parameter.leastBetween(from, contour.points[isLast ? 0 : i + 1]));
        }
    }
    return range.low < range.high ? range : ParameterRange{};
}

} // namespace easel::drawing
