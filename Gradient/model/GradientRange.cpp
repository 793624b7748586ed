// Fitting a gradient's geometry to a polygon.
#include "Gradient/model/GradientRange.h"

#include "Gradient/model/OwnedPolygon.h"

#include <algorithm>

void FindLinearGradientRange(CFPolygonRef polygon, double angle, TPoint<double>& start, TPoint<double>& end) {
    StOwnedPolygon const turned(CFPolygonRef(polygon, true));
    TPoint<double> const centre = turned.Get().Bounds().MidPt();
    RotateFPoly(turned.Get(), angle, centre);

    TRect<double> const extent = turned.Get().Bounds();
    TPoint<double> const middle = extent.MidPt();
    start.Set(extent.left, middle.v);
    end.Set(extent.right, middle.v);
    start.Rotate(-angle, centre);
    end.Rotate(-angle, centre);
}

void FindRadialGradientRange(CFPolygonRef polygon, TPoint<double>& /*start*/, TPoint<double>& end,
                             double& startRadius, double& endRadius) {
    TRect<double> const bounds = polygon.Bounds();
    endRadius = LineLength(end, bounds.TopLeft());
    endRadius = std::max(endRadius, LineLength(end, bounds.TopRight()));
    endRadius = std::max(endRadius, LineLength(end, bounds.BottomRight()));
    endRadius = std::max(endRadius, LineLength(end, bounds.BottomLeft()));
    startRadius = 0.0;
}
