#include "easel/svg/read/ObjectReader.h"

#include "easel/drawing/GradientDescription.h"
#include "easel/drawing/StandardGradient.h"
#include "easel/svg/read/PatternFrame.h"
#include "easel/svg/text/RecordText.h"

#include <algorithm>
#include <utility>

namespace easel::svg {

using drawing::ColorPaint;
using drawing::FillPattern;
using drawing::Gradient;
using drawing::Kind;
using drawing::NoPaint;
using drawing::Object;
using drawing::Paint;
using drawing::Style;

namespace {

constexpr std::size_t kRecentStyles = 16;

struct OwnGradient {
    CGradientData record;
    drawing::Remainder remainder;
};

bool hasExtent(const Gradient& gradient) {
    if (const auto* const line = std::get_if<drawing::LinearGeometry>(&gradient.geometry))
        return line->start != line->end;
    return std::get<drawing::RadialGeometry>(gradient.geometry).radius > 0;
}

// Whether the element, placed so on a shape of these units, may be the standard form. On a shape without
// width or height the standard form has no extent, and is placed as a color or not at all.
bool mayBe(const Gradient& standard, const GradientElement& element, const PlacedPaint& placed,
           const drawing::Affine& units) {
    const bool sameMap = element.transform == units.inverse() * standard.toDrawing;
    const auto* const foreign = std::get_if<Gradient>(&placed);
    if (!foreign)
        return !hasExtent(standard) || !units.invertible() ||
               (sameMap && !(units * element.transform).invertible());
    // With a map that is nearly flat, rounding puts what was written as the same far away.
    Gradient gradient = *foreign;
    if (sameMap)
        gradient.toDrawing = standard.toDrawing;
    return alike(standard, gradient);
}

// The record and remainder that are written beside the gradient, as long as they still tell the same as the
// gradient itself: other programs change the one and leave the other.
std::optional<OwnGradient> writtenGradient(const GradientElement& element, const PlacedPaint& placed,
                                           const Object& object) {
    const auto record = parseRecord(element.own.record);
    const auto remainder = parseRemainder(element.own.opacity, element.own.ellipse);
    if (!record || !remainder)
        return std::nullopt;
    const auto standard = drawing::standardGradient(*record, &*remainder, object.outline);
    if (standard && !mayBe(*standard, element, placed, unitsOf(object)))
        return std::nullopt;
    return OwnGradient{*record, *remainder};
}

// The record of a gradient that needs nothing beside it and hardly more stops than the file states: it is
// held as such from the start. Every other gradient stays as the file says until it is changed.
std::optional<OwnGradient> plainRecord(const Gradient& placed, const drawing::Path& outline) {
    if (!placed.ramp.opaque())
        return std::nullopt;
    const drawing::GradientDescription description = drawing::describe(placed, outline);
    if (description.loss != drawing::Loss::None || !description.remainder.empty() ||
        description.record.ColorList().size() > placed.ramp.stops().size() + 2)
        return std::nullopt;
    return OwnGradient{description.record, {}};
}

Paint plainPaint(PaintSpec::Kind kind, const PaintSpec& spec, const ComputedStyle& style) {
    if (kind == PaintSpec::Kind::Color)
        return spec.color;
    if (kind == PaintSpec::Kind::CurrentColor)
        return style.color;
    if (style.context && kind == PaintSpec::Kind::ContextFill)
        return style.context->fill;
    if (style.context && kind == PaintSpec::Kind::ContextStroke)
        return style.context->stroke;
    return NoPaint();
}

Paint kept(PlacedPaint&& placed) {
    if (auto* const foreign = std::get_if<Gradient>(&placed))
        return std::make_shared<const Gradient>(std::move(*foreign));
    if (const auto* const color = std::get_if<ColorPaint>(&placed))
        return *color;
    return NoPaint();
}

double lengthOf(const drawing::Path& path) {
    constexpr double kFlatness = 1e-4; // of the larger side
    const drawing::Box box = path.bounds();
    const double side = std::max(box.width(), box.height());
    if (!(side > 0))
        return 0;
    double sum = 0;
    for (const drawing::Contour& contour : flatten(path, side * kFlatness)) {
        const std::vector<drawing::Point>& points = contour.points;
        for (std::size_t i = 1; i < points.size(); ++i)
            sum += length(points[i] - points[i - 1]);
        if (contour.closed)
            sum += length(points.front() - points.back());
    }
    return sum;
}

// Lengths along the outline are shares of a length that the author may state.
void scaleDashes(drawing::Stroke& stroke, pugi::xml_node element, const drawing::Path& outline) {
    const double stated = element.attribute("pathLength").as_double();
    if (stroke.dashes.empty() || !(stated > 0))
        return;
    const double scale = lengthOf(outline) / stated;
    if (!(scale > 0) || !inRange(scale))
        return;
    for (double& dash : stroke.dashes)
        dash *= scale;
    stroke.dashOffset *= scale;
}

bool strokeInRange(const ComputedStyle& style) {
    return style.stroke.kind == PaintSpec::Kind::None ||
           (inRange(style.strokeWidth) && inRange(style.miterLimit) && inRange(style.dashOffset));
}

FillPattern patternOf(const Paint& fill) {
    if (std::holds_alternative<NoPaint>(fill))
        return FillPattern::None;
    const auto* const color = std::get_if<ColorPaint>(&fill);
    return color && *color == ColorPaint{} ? FillPattern::SolidBlack : FillPattern::Other;
}

} // namespace

std::optional<Object> ObjectReader::read(pugi::xml_node element, Shape shape, double opacity,
                                         const Place& place) {
    scene_.budget.spend(Budget::kObject + shape.outline.points().size());
    const PaintPlace at{shape.box(), place.toDrawing, place.lengths};
    // The outline is moved in its place unless dashes are measured along it.
    const bool measured = place.style.dashes && element.attribute("pathLength");
    const drawing::Path stated = measured ? shape.outline : drawing::Path();
    auto outline = placedPath(std::move(shape.outline), place.toDrawing);
    if (!outline || !strokeInRange(place.style)) {
        scene_.notes.add(Unsupported::OutOfRange);
        return std::nullopt;
    }
    Object object;
    object.kind = shape.kind;
    object.id = element.attribute("id").value();
    object.fillRule = place.style.fillRule;
    object.outline = std::move(*outline);
    object.units = sharedUnits(place.toDrawing);
    setFill(object, at, place.style);
    // A path that is neither closed nor filled is a line; only closed shapes take a gradient.
    if (object.kind == Kind::Path && object.fillPattern == FillPattern::None && !object.outline.closed())
        object.kind = Kind::Polyline;

    Style style;
    style.stroke.paint = paint(place.style.stroke, at, place.style);
    style.opacity = opacity;
    style.fillOpacity = place.style.fillOpacity;
    style.first = place.style.first;
    if (!std::holds_alternative<NoPaint>(style.stroke.paint)) {
        style.stroke.opacity = place.style.strokeOpacity;
        style.stroke.inDrawingUnits = place.style.fixedStroke;
        style.stroke.width = std::max(place.style.strokeWidth, 0.0);
        style.stroke.join = place.style.join;
        style.stroke.cap = place.style.cap;
        style.stroke.miterLimit = place.style.miterLimit;
        style.stroke.dashOffset = place.style.dashOffset;
        if (place.style.dashes)
            style.stroke.dashes = *place.style.dashes;
        scaleDashes(style.stroke, element, place.style.fixedStroke ? object.outline : stated);
    }
    object.style = shared(std::move(style));
    return object;
}

std::optional<Object> ObjectReader::readPicture(pugi::xml_node element, const drawing::Path& outline,
                                                double opacity, const Place& place) {
    scene_.budget.spend(Budget::kObject);
    auto placed = placedPath(outline, place.toDrawing);
    if (!placed) {
        scene_.notes.add(Unsupported::OutOfRange);
        return std::nullopt;
    }
    Object object;
    object.kind = Kind::Picture;
    object.id = element.attribute("id").value();
    object.outline = std::move(*placed);
    object.units = sharedUnits(place.toDrawing);
    Style style;
    style.opacity = opacity;
    object.style = shared(std::move(style));
    return object;
}

std::shared_ptr<const ContextPaints>
ObjectReader::contextOf(ContextPaints::Giver giver, const drawing::Box& box, const Place& place) const {
    const PaintPlace at{box, place.toDrawing, place.lengths};
    return std::make_shared<const ContextPaints>(ContextPaints{
        paint(place.style.fill, at, place.style), paint(place.style.stroke, at, place.style), giver});
}

void ObjectReader::setFill(Object& object, const PaintPlace& at, const ComputedStyle& style) {
    const GradientElement* const element = gradientOf(style.fill);
    if (!element) {
        object.fill = paintWithoutGradient(style.fill, at, style);
    } else {
        PlacedPaint placed = place(*element, at);
        if (carriesGradient(object.kind) && setGradient(object, *element, placed))
            return;
        object.fill = kept(std::move(placed));
    }
    const bool isGradient = drawing::gradientIn(object.fill) && carriesGradient(object.kind);
    object.fillPattern = isGradient ? FillPattern::SolidBlack : patternOf(object.fill);
}

bool ObjectReader::setGradient(Object& object, const GradientElement& element, const PlacedPaint& placed) {
    auto own = writtenGradient(element, placed, object);
    if (const auto* const foreign = std::get_if<Gradient>(&placed); foreign && !own)
        own = plainRecord(*foreign, object.outline);
    if (!own)
        return false;
    object.gradient = drawing::ObjectGradient(new CGradient(own->record));
    if (!own->remainder.empty())
        object.remainder = drawing::makeShared<const drawing::Remainder>(std::move(own->remainder));
    object.fillPattern = FillPattern::SolidBlack;
    return true;
}

const GradientElement* ObjectReader::gradientOf(const PaintSpec& spec) const {
    return spec.kind == PaintSpec::Kind::Server ? scene_.servers.gradient(spec.serverId) : nullptr;
}

Paint ObjectReader::paint(const PaintSpec& spec, const PaintPlace& at, const ComputedStyle& style) const {
    const GradientElement* const element = gradientOf(spec);
    return element ? kept(place(*element, at)) : paintWithoutGradient(spec, at, style);
}

PlacedPaint ObjectReader::place(const GradientElement& element, const PaintPlace& at) const {
    scene_.budget.spend(element.stops.size());
    return placedGradient(element, at);
}

Paint ObjectReader::paintWithoutGradient(const PaintSpec& spec, const PaintPlace& at,
                                         const ComputedStyle& style) const {
    if (spec.kind != PaintSpec::Kind::Server)
        return plainPaint(spec.kind, spec, style);
    if (spec.serverId.empty())
        scene_.notes.add(Unsupported::External);
    if (const pugi::xml_node server = scene_.tree.byId(spec.serverId); isPattern(scene_.tree.svgName(server)))
        return patterns_(server, at);
    return plainPaint(spec.fallback, spec, style);
}

drawing::SharedPtr<const drawing::Affine> ObjectReader::sharedUnits(const drawing::Affine& units) {
    if (units == drawing::Affine())
        return nullptr;
    if (!lastUnits_ || *lastUnits_ != units)
        lastUnits_ = drawing::makeShared<const drawing::Affine>(units);
    return lastUnits_;
}

ObjectReader::StylePtr ObjectReader::shared(Style style) {
    if (style == drawing::plainStyle())
        return nullptr;
    for (const StylePtr& known : recent_)
        if (*known == style)
            return known;
    auto made = drawing::makeShared<const Style>(std::move(style));
    if (recent_.size() < kRecentStyles)
        recent_.push_back(made);
    else
        recent_[nextRecent_++ % kRecentStyles] = made;
    return made;
}

} // namespace easel::svg
