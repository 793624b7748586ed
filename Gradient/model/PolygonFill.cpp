// Filling a polygon with a gradient.
#include "Gradient/model/PolygonFill.h"

#include "Gradient/model/GradientRange.h"
#include "host/Drawing.h"

#include <memory>

namespace {

/// How a path is given back.
struct CPathReleaser {
    void operator()(CGPath const* path) const { CGPathRelease(path); }
};
/// A path that is released at the end of its scope.
using StOwnedPath = std::unique_ptr<CGPath const, CPathReleaser>;

void FitLinear(CFPolygonRef polygon, CGradientData& gradient) {
    TPoint<double> start;
    TPoint<double> end;
    FindLinearGradientRange(polygon, gradient.Angle(), start, end);
    gradient.SetStart(start);
    gradient.SetEnd(end);
}

void FitRadial(CFPolygonRef polygon, TRect<double> const& bounds, CGradientData& gradient) {
    TPoint<double> start = bounds.TopLeft() + gradient.Start() * bounds.GetSize();
    TPoint<double> end = bounds.TopLeft() + gradient.End() * bounds.GetSize();
    double startRadius = 0.0;
    double endRadius = 0.0;
    FindRadialGradientRange(polygon, start, end, startRadius, endRadius);
    gradient.SetStart(start);
    gradient.SetEnd(end);
    gradient.SetStartRadius(static_cast<float>(startRadius));
    gradient.SetEndRadius(static_cast<float>(endRadius));
}

} // namespace

void CompleteRamp(std::list<CGradientColor>& colors) {
    if (colors.front().Percent() > 0.0) {
        colors.push_front(colors.front());
        colors.front().SetPercent(0.0F);
    }
    if (colors.back().Percent() < 1.0) {
        colors.push_back(colors.back());
        colors.back().SetPercent(1.0F);
    }
}

void FillGradientPoly(CGraphicsEnvironment* environment, CFPolygonRef polygon,
                      CGradientData const& gradient) {
    TRect<double> const bounds = polygon.Bounds();
    CGradientData fitted(gradient);
    CompleteRamp(fitted.ColorList());
    StOwnedPath const path(CreatePolyPath(CFPolygonRef(polygon, false)));
    if (fitted.Type() == kLinearGradient) {
        FitLinear(polygon, fitted);
    } else {
        FitRadial(polygon, bounds, fitted);
    }
    environment->CGContextDrawGradient(path.get(), fitted);
}
