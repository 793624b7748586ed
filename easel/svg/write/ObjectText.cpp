#include "easel/svg/write/ObjectText.h"

#include "easel/svg/style/Color.h"
#include "easel/svg/text/Number.h"
#include "easel/svg/write/ElementText.h"
#include "easel/svg/write/PictureText.h"
#include "easel/svg/write/StyleText.h"

namespace easel::svg {

using drawing::Affine;
using drawing::Box;
using drawing::ColorPaint;
using drawing::Kind;
using drawing::Object;
using drawing::Path;
using drawing::Point;
using drawing::Stroke;
using drawing::Style;

namespace {

std::string pointsText(const Path& path) {
    std::string text;
    for (const Point p : path.points()) {
        text += text.empty() ? "" : " ";
        text += numberText(p.x) + ',' + numberText(p.y);
    }
    return text;
}

struct Element {
    std::string name;
    std::string geometry;
};

// Nothing for outlines that the element of their kind cannot say; those become paths.
std::optional<Element> rectangleElement(const Path& path) {
    const Box box = path.bounds();
    std::string geometry = attribute("x", box.left) + attribute("y", box.top) +
                           attribute("width", box.width()) + attribute("height", box.height());
    if (path == drawing::rectanglePath(box))
        return Element{"rect", geometry};
    if (path.points().size() != 17)
        return std::nullopt;
    const double rx = path.points()[0].x - box.left;
    const double ry = path.points()[4].y - box.top;
    if (path != drawing::roundedRectanglePath(box, rx, ry))
        return std::nullopt;
    return Element{"rect", geometry + attribute("rx", rx) + attribute("ry", ry)};
}

std::optional<Element> ellipseElement(const Path& path) {
    if (path.points().size() != 13)
        return std::nullopt;
    const Point centre{path.points()[3].x, path.points()[0].y};
    const double rx = path.points()[0].x - centre.x;
    const double ry = path.points()[3].y - centre.y;
    if (path != drawing::ellipsePath(centre, rx, ry))
        return std::nullopt;
    return Element{"ellipse", attribute("cx", centre.x) + attribute("cy", centre.y) + attribute("rx", rx) +
                                  attribute("ry", ry)};
}

std::vector<Point> pointsOf(const Path& path) {
    return {path.points().begin(), path.points().end()};
}

std::optional<Element> pointsElement(const char* name, const Path& path) {
    const bool closed = path == drawing::polygonPath(pointsOf(path));
    const bool open = path == drawing::polylinePath(pointsOf(path));
    if (name == std::string_view("polygon") ? !closed : !open)
        return std::nullopt;
    return Element{name, attribute("points", pointsText(path))};
}

std::optional<Element> lineElement(const Path& path) {
    if (path.points().size() != 2 || path != drawing::polylinePath(pointsOf(path)))
        return std::nullopt;
    const Point from = path.points()[0];
    const Point to = path.points()[1];
    return Element{"line", attribute("x1", from.x) + attribute("y1", from.y) + attribute("x2", to.x) +
                               attribute("y2", to.y)};
}

Element elementFor(Kind kind, const Path& path) {
    std::optional<Element> element;
    if (kind == Kind::Rect)
        element = rectangleElement(path);
    else if (kind == Kind::Ellipse)
        element = ellipseElement(path);
    else if (kind == Kind::Polygon)
        element = pointsElement("polygon", path);
    else if (kind == Kind::Polyline)
        element = pointsElement("polyline", path);
    else if (kind == Kind::Line)
        element = lineElement(path);
    return element ? *element : Element{"path", attribute("d", pathText(path))};
}

std::string strokeAttributes(const Object& object, const Stroke& stroke, GradientBlock& gradients) {
    if (std::holds_alternative<drawing::NoPaint>(stroke.paint))
        return {};
    const auto* const color = std::get_if<ColorPaint>(&stroke.paint);
    const double opacity = stroke.opacity * (color ? color->opacity : 1);
    return attribute("stroke", strokeText(object, gradients)) + attribute("stroke-width", stroke.width) +
           attributeUnless(1, "stroke-opacity", opacity) +
           attribute("vector-effect", stroke.inDrawingUnits ? "non-scaling-stroke" : "") +
           penText(stroke, Defaults::Stated);
}

std::string fillAttributes(const Object& object, GradientBlock& gradients) {
    std::string fill = fillText(object, gradients);
    double opacity = styleOf(object).fillOpacity;
    if (const auto* const foreign = std::get_if<drawing::GradientPtr>(&object.fill); foreign && fill.empty())
        fill = gradients.addForeign(**foreign, object);
    if (const auto* const color = std::get_if<ColorPaint>(&object.fill); color && !object.showsGradient())
        opacity *= color->opacity;
    return attribute("fill", fill.empty() ? "none" : fill) + attributeUnless(1, "fill-opacity", opacity) +
           ruleText("fill-rule", object.fillRule);
}

// In the units of its pixels.
std::string pictureText(const Object& object, const drawing::PlacedPicture& placed,
                        const Affine& placeToDrawing, const std::string& prefix) {
    return '<' + prefix + "image" + attribute("id", object.id.text()) + pictureAttributes(*placed.picture) +
           transformAttribute("transform", placeToDrawing.inverse() * placed.toDrawing) +
           renderingText(placed) + attributeUnless(1, "opacity", styleOf(object).opacity) + "/>";
}

} // namespace

std::string objectText(const Object& object, const Affine& placeToDrawing, const std::string& prefix,
                       GradientBlock& gradients) {
    if (const auto* const picture = std::get_if<drawing::PicturePtr>(&object.fill))
        return pictureText(object, **picture, placeToDrawing, prefix);
    const Affine own = unitsOf(object);
    const bool ownUnits = own.invertible();
    const Affine units = ownUnits ? own : placeToDrawing;
    const Path outline = units == Affine() ? object.outline : object.outline.transformed(units.inverse());
    const Element element = elementFor(object.kind, outline);
    const Style& style = styleOf(object);
    std::string text = '<' + prefix + element.name;
    text += attribute("id", object.id.text()) + element.geometry;
    text += transformAttribute("transform", placeToDrawing.inverse() * units);
    text += fillAttributes(object, gradients) + strokeAttributes(object, style.stroke, gradients);
    return text + attributeUnless(1, "opacity", style.opacity) + paintOrderText(style.first) + "/>";
}

} // namespace easel::svg
