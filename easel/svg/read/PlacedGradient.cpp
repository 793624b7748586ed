// Works out the geometry of a gradient element on one shape.
#include "easel/svg/read/PaintServers.h"
#include "easel/svg/text/Scanner.h"

namespace easel::svg {

using drawing::ColorPaint;
using drawing::Gradient;
using drawing::LinearGeometry;
using drawing::NoPaint;
using drawing::RadialGeometry;

namespace {

// Coordinates of the gradient's own space: fractions of the box, or lengths.
class Coordinates {
  public:
    Coordinates(const GradientElement& gradient, const PaintPlace& place)
        : fractions_(gradient.units == GradientUnits::ObjectBoundingBox), lengths_(place.lengths) {}

    double read(std::string_view text, Axis axis, const char* otherwise) const {
        if (const auto value = parse(text, axis))
            return *value;
        return parse(otherwise, axis).value_or(0);
    }
    std::optional<double> parse(std::string_view stated, Axis axis) const {
        const std::string_view text = trimmed(stated);
        if (text.empty())
            return std::nullopt;
        if (fractions_)
            if (const auto value = parseFraction(text))
                return value;
        return parseLength(text, lengths_, axis);
    }

  private:
    bool fractions_;
    const LengthContext& lengths_;
};

LinearGeometry linear(const LineTexts& texts, const Coordinates& at) {
    return {{at.read(texts.x1, Axis::Horizontal, "0%"), at.read(texts.y1, Axis::Vertical, "0%")},
            {at.read(texts.x2, Axis::Horizontal, "100%"), at.read(texts.y2, Axis::Vertical, "0%")}};
}

RadialGeometry radial(const CircleTexts& texts, const Coordinates& at) {
    RadialGeometry geometry;
    geometry.centre = {at.read(texts.cx, Axis::Horizontal, "50%"), at.read(texts.cy, Axis::Vertical, "50%")};
    geometry.radius = at.read(texts.r, Axis::Other, "50%");
    geometry.focus = {at.parse(texts.fx, Axis::Horizontal).value_or(geometry.centre.x),
                      at.parse(texts.fy, Axis::Vertical).value_or(geometry.centre.y)};
    geometry.focusRadius = at.read(texts.fr, Axis::Other, "0%");
    return geometry;
}

ColorPaint paintOf(const drawing::RampStop& stop) {
    return {stop.color, stop.opacity};
}

} // namespace

PlacedPaint placedGradient(const GradientElement& gradient, const PaintPlace& place) {
    if (gradient.stops.empty())
        return NoPaint();
    Gradient result;
    result.toDrawing = place.toDrawing;
    if (gradient.units == GradientUnits::ObjectBoundingBox) {
        // A box without area gives the gradient no space to be in.
        if (!(place.box.width() > 0 && place.box.height() > 0))
            return NoPaint();
        result.toDrawing = place.toDrawing * boxUnits(place.box);
    }
    result.toDrawing = result.toDrawing * gradient.transform;
    if (!result.toDrawing.invertible())
        return NoPaint();
    if (gradient.stops.size() == 1)
        return paintOf(gradient.stops.front());
    const Coordinates at(gradient, place);
    if (const auto* const line = std::get_if<LineTexts>(&gradient.geometry)) {
        const LinearGeometry geometry = linear(*line, at);
        if (geometry.start == geometry.end)
            return paintOf(gradient.stops.back());
        result.geometry = geometry;
    } else {
        const RadialGeometry geometry = radial(std::get<CircleTexts>(gradient.geometry), at);
        if (!(geometry.radius > 0))
            return paintOf(gradient.stops.back());
        result.geometry = geometry;
    }
    result.spread = gradient.spread;
    result.ramp = drawing::Ramp({gradient.stops.begin(), gradient.stops.end()});
    return result;
}

} // namespace easel::svg
