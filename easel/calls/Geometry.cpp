// Implements host/Geometry.h.
#include "host/Geometry.h"

#include "easel/runtime/Constraint.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/HostPolygon.h"
#include "easel/runtime/Process.h"

#include <memory>

using easel::runtime::journal;

CFPolygonRef::CFPolygonRef(const CFPolygonRef& other, bool duplicate)
    : polygon_(duplicate ? std::make_unique<FPolygon>(*other.polygon_).release() : other.polygon_) {}

TRect<double> CFPolygonRef::Bounds() const {
    easel::drawing::Box box;
    for (const TPoint<double>& vertex : polygon_->vertices)
        box.add(easel::runtime::toPoint(vertex));
    return easel::runtime::toHost(box);
}

CFPolygonRef FRectToFPoly(const TRect<double>& rect) {
    journal("FRectToFPoly");
    auto polygon = std::make_unique<FPolygon>();
    polygon->vertices = {rect.TopLeft(), rect.TopRight(), rect.BottomRight(), rect.BottomLeft()};
    return CFPolygonRef(polygon.release());
}

void RotateFPoly(CFPolygonRef polygon, double degrees, const TPoint<double>& centre) {
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
    point = easel::runtime::constrained(anchor, point);
}
