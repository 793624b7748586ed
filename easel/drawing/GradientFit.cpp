#include "easel/drawing/GradientFit.h"

#include <algorithm>

namespace easel::drawing {

namespace {

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

std::vector<RampStop> completeStops(const CGradientData& record) {
    const std::list<CGradientColor>& colors = record.ColorList();
    std::vector<RampStop> stops;
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

GradientGeometry fitGeometry(const CGradientData& record, const Path& outline) {
    if (record.Type() == kLinearGradient)
        return fitLine(outline, static_cast<double>(record.Angle()));
    const Box bounds = outline.bounds();
    const Point end = fractionOf(bounds, record.End());
    const auto radius = static_cast<float>(farthestCorner(bounds, end));
    return RadialGeometry{fractionOf(bounds, record.Start()), 0, end, static_cast<double>(radius)};
}

Gradient fitGradient(const CGradientData& record, const Path& outline) {
    return {fitGeometry(record, outline), {}, Spread::Pad, Ramp(completeStops(record))};
}

} // namespace easel::drawing
