// Polygons of the host interface and the constraint of directions.
#include "host/Geometry.h"

#include "easel/runtime/HostPoint.h"
#include "easel/runtime/HostPolygon.h"
#include "easel/runtime/Journal.h"

#include <cmath>
#include <memory>
#include <numbers>

using easel::runtime::journal;

namespace {

constexpr double kAllowedStep = 15; // degrees

// The direction as a unit vector, with both coordinates equal on the diagonals, so that these come out exact.
TPoint<double> unitVector(double degrees) {
    CosSin const turn(degrees);
    if (std::fmod(std::abs(degrees), 90.0) != 45.0)
        return {turn.cos, turn.sin};
    double const side = std::numbers::sqrt2 / 2;
    return {std::copysign(side, turn.cos), std::copysign(side, turn.sin)};
}

} // namespace

CFPolygonRef::CFPolygonRef(CFPolygonRef const& other, bool duplicate)
    : polygon_(duplicate ? std::make_unique<FPolygon>(*other.polygon_).release() : other.polygon_) {}

TRect<double> CFPolygonRef::Bounds() const {
    easel::drawing::Box box;
    for (TPoint<double> const& vertex : polygon_->vertices)
        box.add(easel::runtime::toPoint(vertex));
    return easel::runtime::toHost(box);
}

CFPolygonRef FRectToFPoly(TRect<double> const& rect) {
    journal("FRectToFPoly");
    auto polygon = std::make_unique<FPolygon>();
    polygon->vertices = {rect.TopLeft(), rect.TopRight(), rect.BottomRight(), rect.BottomLeft()};
    return CFPolygonRef(polygon.release());
}

void RotateFPoly(CFPolygonRef polygon, double degrees, TPoint<double> const& centre) {
    journal("RotateFPoly", degrees);
    for (TPoint<double>& vertex : polygon.Storage()->vertices)
        vertex.Rotate(degrees, centre);
}

void KillFPoly(CFPolygonRef polygon) {
    journal("KillFPoly");
    const std::unique_ptr<FPolygon> storage(polygon.Storage());
}

void Restrict(TPoint<double> anchor, TPoint<double>& point) {
    journal("Restrict");
    TPoint<double> const offset = point - anchor;
    if (!std::isfinite(offset.h) || !std::isfinite(offset.v))
        return;
    double const angle = TLine<double>(anchor, point).Angle();
    // The nearest point of the allowed line, so that the constrained point stays at the mouse's side.
    TPoint<double> const direction = unitVector(std::round(angle / kAllowedStep) * kAllowedStep);
    double const distance = offset.h * direction.h + offset.v * direction.v;
    point.Set(anchor.h + distance * direction.h, anchor.v + distance * direction.v);
}
