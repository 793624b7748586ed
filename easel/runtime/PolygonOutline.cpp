// Flattens outlines.
#include "easel/runtime/PolygonOutline.h"

#include <cstddef>

namespace easel::runtime {

namespace {

// Anything with fewer corners has no inside that a gradient could fill.
constexpr std::size_t kFewestCorners = 3;

} // namespace

drawing::Path polygonOutline(const drawing::Path& outline, double tolerance) {
    drawing::Path polygon;
    bool hasInside = false;
    for (const drawing::Contour& contour : flatten(outline, tolerance)) {
        for (std::size_t i = 0; i < contour.points.size(); ++i) {
            if (!isFinite(contour.points[i]))
                return {};
            if (i == 0)
                polygon.moveTo(contour.points[i]);
            else
                polygon.lineTo(contour.points[i]);
        }
        polygon.close();
        hasInside = hasInside || contour.points.size() >= kFewestCorners;
    }
    return hasInside ? polygon : drawing::Path();
}

} // namespace easel::runtime
