// The commands on the gradient of a shape.
#include "easel/drawing/GradientCommands.h"

#include "easel/drawing/ShapeGradient.h"

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

} // namespace

bool same(const WholeGradient& a, const WholeGradient& b) {
    return CGradient(a.record).HashID() == CGradient(b.record).HashID() && a.remainder == b.remainder;
}

std::optional<WholeGradient> wholeGradientOf(const Object& object) {
    const ShapeGradient gradient = shapeGradientOf(object);
    const CGradient* const record = gradientIn(gradient.record);
    if (!record || object.fillPattern == FillPattern::None)
        return std::nullopt;
    return WholeGradient{record->GetGradientData(), gradient.remainder ? *gradient.remainder : Remainder()};
}

void putGradient(Object& object, const WholeGradient& gradient) {
    RemainderPtr remainder;
    if (!gradient.remainder.empty())
        remainder = std::make_shared<const Remainder>(gradient.remainder);
    object.setWholeGradient(ObjectGradient(std::make_unique<CGradient>(gradient.record).release()),
                            std::move(remainder));
    if (object.fillPattern == FillPattern::None)
        object.setFillPattern(FillPattern::SolidBlack);
}

void putPlainColor(Object& object, Rgb16 color) {
    const ColorPaint paint{color, 1};
    object.setWholeGradient({}, nullptr);
    object.setFillPattern(paint == ColorPaint() ? FillPattern::SolidBlack : FillPattern::Other);
    object.fill = paint;
}

void removeGradient(Object& object) {
    const std::optional<WholeGradient> gradient = wholeGradientOf(object);
    if (!gradient)
        return;
    const std::list<CGradientColor>& colors = gradient->record.ColorList();
    const RGBColor first = colors.empty() ? RGBColor() : colors.front().ColorRGB();
    putPlainColor(object, {first.red, first.green, first.blue});
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

WholeGradient reversed(WholeGradient gradient) {
    std::list<CGradientColor> colors;
    for (const CGradientColor& stop : gradient.record.ColorList())
        colors.emplace_front(stop.ColorRGB(), 1 - stop.Percent());
    gradient.record.ColorList() = std::move(colors);
    std::vector<OpacityStop>& opacity = gradient.remainder.opacity;
    std::reverse(opacity.begin(), opacity.end());
    for (OpacityStop& stop : opacity)
        stop.position = 1 - stop.position;
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
