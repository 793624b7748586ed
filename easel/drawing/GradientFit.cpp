#include "easel/drawing/GradientFit.h"

#include "easel/drawing/FadedRamp.h"

#include <algorithm>

namespace easel::drawing {

namespace {

// The linear map with `centre` as the point that stays.
Affine about(Point centre, const Affine& map) {
    return Affine::translation(centre.x, centre.y) * map * Affine::translation(-centre.x, -centre.y);
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
    const Box turned = outline.transformed(about(centre, Affine::rotation(degrees))).bounds();
    const Affine back = about(centre, Affine::rotation(-degrees));
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

GradientGeometry fitGeometry(const CGradientData& record, const Path& outline,
                             const std::optional<Affine>& ellipse) {
    if (record.Type() == kLinearGradient)
        return fitLine(outline, static_cast<double>(record.Angle()));
    const Box bounds = outline.bounds();
    const Point start = fractionOf(bounds, record.Start());
    const Point end = fractionOf(bounds, record.End());
    const auto reach = [end](const Box& box) {
        return static_cast<double>(static_cast<float>(farthestCorner(box, end)));
    };
    if (!ellipse)
        return RadialGeometry{start, 0, end, reach(bounds)};
    const Affine toCircles = about(end, *ellipse).inverse();
    return RadialGeometry{toCircles(start), 0, end, reach(outline.transformed(toCircles).bounds())};
}

Gradient fitGradient(const CGradientData& record, const Remainder* remainder, const Path& outline) {
    const std::optional<Affine> ellipse = remainder ? remainder->ellipse : std::nullopt;
    Gradient gradient{fitGeometry(record, outline, ellipse), {}, Spread::Pad, Ramp(completeStops(record))};
    if (const auto* const circles = std::get_if<RadialGeometry>(&gradient.geometry); circles && ellipse)
        gradient.toDrawing = about(circles->centre, *ellipse);
    if (remainder && !remainder->opacity.empty())
        gradient.ramp = faded(gradient.ramp, remainder->opacity);
    return gradient;
}

} // namespace easel::drawing
