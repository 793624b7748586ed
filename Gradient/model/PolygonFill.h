// Filling a polygon with a gradient.
#pragma once

#include "host/Geometry.h"
#include "host/Gradient.h"

#include <list>

class CGraphicsEnvironment;

/// Fills the polygon in the environment with the gradient, fitted to the polygon. Neither is changed. The
/// record has at least one stop.
void FillGradientPoly(CGraphicsEnvironment* environment, CFPolygonRef polygon, CGradientData const& gradient);

/// Extends a ramp flat to 0 and 1 where its first or last stop lies inside. Stops outside stay.
void CompleteRamp(std::list<CGradientColor>& colors);
