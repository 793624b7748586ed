#include "easel/drawing/GradientFit.h"

#include <algorithm>

namespace easel::drawing {

namespace {

std::vector<FittedStop> completeRamp(const std::list<CGradientColor>& colors) {
    std::vector<FittedStop> stops;
    if (colors.empty())
        return stops;
    stops.reserve(colors.size() + 2);
    const auto add = [&stops](const CGradientColor& stop, double position) {
        const RGBColor color = stop.ColorRGB();
        stops.push_back({position, {color.red, color.green, color.blue}});
    };
    if (colors.front().Percent() > 0)
        add(colors.front(), 0);
    for (const CGradientColor& stop : colors)
        add(stop, stop.Percent());
    if (colors.back().Percent() < 1)
        add(colors.back(), 1);
    return stops;
}

Affine turnAbout(Point centre, double degrees) {
    return Affine::translation(centre.x, centre.y) * Affine::rotation(degrees) *
           Affine::translation(-centre.x, -centre.y);
}

Point fractionOf(const Box& box, TPoint<double> fraction) {
    return {box.left + fraction.h * box.width(), box.top + fraction.v * box.height()};
}

} // namespace

double farthestCorner(const Box& box, Point from) {
    double farthest = 0;
    for (const Point corner : {Point{box.left, box.top}, Point{box.right, box.top},
                               Point{box.right, box.bottom}, Point{box.left, box.bottom}})
        farthest = std::max(farthest, length(corner - from));
    return farthest;
}

LinearGeometry fitLine(const Path& outline, double degrees) {
    const Point centre = outline.bounds().centre();
    const Box turned = outline.transformed(turnAbout(centre, degrees)).bounds();
    const Affine back = turnAbout(centre, -degrees);
    const double middle = turned.centre().y;
    return {back({turned.left, middle}), back({turned.right, middle})};
}

FittedGradient fitGradient(const CGradientData& record, const Path& outline) {
    FittedGradient fit;
    fit.stops = completeRamp(record.ColorList());
    if (record.Type() == kLinearGradient) {
        const LinearGeometry line = fitLine(outline, static_cast<double>(record.Angle()));
        fit.start = line.start;
        fit.end = line.end;
        return fit;
    }
    const Box bounds = outline.bounds();
    fit.kind = FittedKind::Radial;
    fit.start = fractionOf(bounds, record.Start());
    fit.end = fractionOf(bounds, record.End());
    fit.endRadius = static_cast<double>(static_cast<float>(farthestCorner(bounds, fit.end)));
    return fit;
}

} // namespace easel::drawing
