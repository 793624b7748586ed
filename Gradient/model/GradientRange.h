// Fitting a gradient's geometry to a polygon.
#pragma once

#include "host/Geometry.h"

/// Start and end of a linear gradient at `angle` (degrees) that just spans the polygon: perpendiculars at the
/// two ends enclose and touch it. The polygon is not changed.
void FindLinearGradientRange(CFPolygonRef polygon, double angle, TPoint<double>& start, TPoint<double>& end);

/// Radii of a radial gradient with absolute centres: 0 for the inner circle; the outer one, about `end`,
/// reaches the farthest corner of the polygon's bounds wherever `start` lies. The points are not changed.
void FindRadialGradientRange(CFPolygonRef polygon, TPoint<double>& start, TPoint<double>& end,
                             double& startRadius, double& endRadius);
