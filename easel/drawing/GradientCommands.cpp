// The commands on the gradient of a shape.
#include "easel/drawing/GradientCommands.h"

#include "easel/drawing/GradientFit.h"
#include "easel/drawing/ShapeGradient.h"
#include "easel/drawing/StandardGradient.h"
#include "easel/drawing/StrokeGradient.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace easel::drawing {

namespace {

constexpr double kTurn = 360;

bool isLinear(const WholeGradient& gradient) {
    return gradient.record.Type() == kLinearGradient;
}

// Without opacity stops a gradient is opaque, so stops that say the same are left out.
void simplify(Remainder& remainder) {
    const auto isOpaque = [](const OpacityStop& stop) { return stop.opacity >= 1; };
    if (std::all_of(remainder.opacity.begin(), remainder.opacity.end(), isOpaque))
        remainder.opacity.clear();
}

TPoint<double> turnedFraction(TPoint<double> fraction, const Affine& turn, const Box& bounds) {
    const Point fromCentre{(fraction.h - 0.5) * bounds.width(), (fraction.v - 0.5) * bounds.height()};
    const Point turned = turn.direction(fromCentre);
    return {0.5 + turned.x / bounds.width(), 0.5 + turned.y / bounds.height()};
}

// The sum of a place on the ramp and the place that it is mirrored to.
double mirrorOf(const WholeGradient& gradient, const GradientFrame& frame) {
    // A shape that reaches this close to the ends of the ramp reaches them but for rounding.
    constexpr double kRounding = 1e-3;
    const Gradient fit = fitGradient(gradient.record, &gradient.remainder, frame.outline);
    const auto* const circles = std::get_if<RadialGeometry>(&fit.geometry);
    if (!circles)
        return 1;
    const ParameterRange shown = visibleRange(*circles, fit.toDrawing, frame);
    const double sum = shown.low + shown.high;
    return std::abs(sum - 1) < kRounding ? 1 : sum;
}

// What lies outside 0 to 1 afterwards is cut off.
std::vector<RampStop> mirrored(std::vector<RampStop> stops, double mirror) {
    std::reverse(stops.begin(), stops.end());
    bool within = true;
    for (RampStop& stop : stops) {
        within = within && stop.position >= mirror - 1 && stop.position <= mirror;
        stop.position = mirror - stop.position;
    }
    return within || mirror == 1 ? stops : Ramp(std::move(stops)).within(0, 1).stops();
}

void strokeWith(Object& object, const WholeGradient& gradient) {
    auto standard = standardGradient(gradient.record, &gradient.remainder, strokeFrame(object));
    const Gradient* const now = gradientIn(styleOf(object).stroke.paint);
    if (standard && !(now && alike(*now, *standard)))
        object.setStrokePaint(std::make_shared<const Gradient>(std::move(*standard)));
}

} // namespace

bool same(const WholeGradient& a, const WholeGradient& b) {
    return CGradient(a.record).HashID() == CGradient(b.record).HashID() && a.remainder == b.remainder;
}

bool takesGradient(const Object& object, PaintStep part) {
    return part == PaintStep::Stroke ? strokes(styleOf(object)) : carriesGradient(object.kind);
}

GradientFrame frameOf(const Object& object, PaintStep part) {
    if (part == PaintStep::Stroke)
        return {strokeFrame(object), std::nullopt};
    return {object.outline, object.fillRule};
}

std::optional<WholeGradient> wholeGradientOf(const Object& object, PaintStep part) {
    const bool isStroke = part == PaintStep::Stroke;
    const ShapeGradient gradient = isStroke ? strokeGradientOf(object) : shapeGradientOf(object);
    const CGradient* const record = gradientIn(gradient.record);
    if (!record || (!isStroke && object.fillPattern == FillPattern::None))
        return std::nullopt;
    return WholeGradient{record->GetGradientData(), gradient.remainder ? *gradient.remainder : Remainder()};
}

void putGradient(Object& object, const WholeGradient& gradient, PaintStep part) {
    if (part == PaintStep::Stroke)
        return strokeWith(object, gradient);
    if (const auto now = wholeGradientOf(object); now && same(*now, gradient))
        return;
    RemainderPtr remainder;
    if (!gradient.remainder.empty())
        remainder = makeShared<const Remainder>(gradient.remainder);
    object.setWholeGradient(ObjectGradient(std::make_unique<CGradient>(gradient.record).release()),
                            std::move(remainder));
    if (object.fillPattern == FillPattern::None)
        object.setFillPattern(FillPattern::SolidBlack);
}

void putPlainColor(Object& object, Rgb16 color, PaintStep part) {
    const ColorPaint paint{color, 1};
    if (part == PaintStep::Stroke)
        return object.setStrokePaint(paint);
    object.setWholeGradient({}, nullptr);
    object.setFillPattern(paint == ColorPaint() ? FillPattern::SolidBlack : FillPattern::Other);
    object.fill = paint;
}

void removeGradient(Object& object, PaintStep part) {
    const std::optional<WholeGradient> gradient = wholeGradientOf(object, part);
    if (!gradient)
        return;
    const std::list<CGradientColor>& colors = gradient->record.ColorList();
    const RGBColor first = colors.empty() ? RGBColor() : colors.front().ColorRGB();
    putPlainColor(object, {first.red, first.green, first.blue}, part);
}

WholeGradient madeOpaque(WholeGradient gradient) {
    gradient.remainder.opacity.clear();
    return gradient;
}

WholeGradient madeCircular(WholeGradient gradient) {
    gradient.remainder.ellipse.reset();
    return gradient;
}

WholeGradient opacityScaled(WholeGradient gradient, double factor) {
    std::vector<OpacityStop>& stops = gradient.remainder.opacity;
    if (stops.empty())
        stops = {{0, 1}, {1, 1}};
    for (OpacityStop& stop : stops)
        stop.opacity = validOpacity(stop.opacity * factor);
    simplify(gradient.remainder);
    return gradient;
}

WholeGradient reversed(WholeGradient gradient, const GradientFrame& frame) {
    const double mirror = mirrorOf(gradient, frame);
    std::vector<RampStop> colors;
    for (const CGradientColor& stop : gradient.record.ColorList()) {
        const RGBColor color = stop.ColorRGB();
        colors.push_back({stop.Percent(), {color.red, color.green, color.blue}, 1});
    }
    gradient.record.ColorList().clear();
    for (const RampStop& stop : mirrored(std::move(colors), mirror))
        gradient.record.ColorList().emplace_back(RGBColor{stop.color.red, stop.color.green, stop.color.blue},
                                                 stop.position);
    std::vector<RampStop> opacity;
    for (const OpacityStop& stop : gradient.remainder.opacity)
        opacity.push_back({stop.position, {}, stop.opacity});
    gradient.remainder.opacity.clear();
    for (const RampStop& stop : mirrored(std::move(opacity), mirror))
        gradient.remainder.opacity.push_back({stop.position, stop.opacity});
    return gradient;
}

double principalAngle(double degrees) {
    const double angle = std::remainder(degrees, kTurn);
    // Adding 0 turns a negative zero into the ordinary one.
    return (angle <= -kTurn / 2 ? angle + kTurn : angle) + 0.0;
}

WholeGradient withAngle(WholeGradient gradient, double degrees) {
    if (isLinear(gradient))
        gradient.record.SetAngle(static_cast<float>(principalAngle(degrees)));
    return gradient;
}

WholeGradient rotated(WholeGradient gradient, double degrees, const Box& bounds) {
    if (isLinear(gradient))
        return withAngle(gradient, static_cast<double>(gradient.record.Angle()) + degrees);
    if (!(bounds.width() > 0 && bounds.height() > 0))
        return gradient;
    // The vertical axis points down, so that a turn of the drawing is clockwise as seen.
    const Affine turn = Affine::rotation(-degrees);
    gradient.record.SetStart(turnedFraction(gradient.record.Start(), turn, bounds));
    gradient.record.SetEnd(turnedFraction(gradient.record.End(), turn, bounds));
    if (std::optional<Affine>& ellipse = gradient.remainder.ellipse)
        ellipse = turn * *ellipse * Affine::rotation(degrees);
    return gradient;
}

WholeGradient withEvenStops(WholeGradient gradient) {
    std::list<CGradientColor>& old = gradient.record.ColorList();
    if (old.size() < 2)
        return gradient;
    const double last = static_cast<double>(old.size() - 1);
    std::list<CGradientColor> even;
    for (const CGradientColor& stop : old)
        even.emplace_back(stop.ColorRGB(), static_cast<double>(even.size()) / last);
    old = std::move(even);
    return gradient;
}

} // namespace easel::drawing
