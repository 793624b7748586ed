#include "easel/svg/read/Shapes.h"

#include "easel/svg/text/PathData.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <array>

namespace easel::svg {

using drawing::Kind;
using drawing::Path;
using drawing::Point;

namespace {

// Geometry, which style may state as well as attributes; what style cannot state is asked for by its name.
class Attributes {
  public:
    Attributes(pugi::xml_node element, const StatedStyle& stated, const LengthContext& lengths)
        : element_(element), stated_(stated), lengths_(lengths) {}

    std::string_view text(const char* name) const { return element_.attribute(name).value(); }
    std::string_view text(Property property) const { return stated_[property]; }
    // Nothing for "auto", too.
    template <class Key> std::optional<double> given(Key key, Axis axis) const {
        return parseLength(text(key), lengths_, axis);
    }
    template <class Key> double length(Key key, Axis axis) const { return given(key, axis).value_or(0); }

  private:
    pugi::xml_node element_;
    const StatedStyle& stated_;
    const LengthContext& lengths_;
};

// Path data as the attribute has them, or as CSS does: path("...").
std::string_view pathText(std::string_view text) {
    Scanner scanner(text);
    if (!scanner.takeWord("path("))
        return text;
    scanner.skipSpaces();
    const char quote = scanner.peek();
    return scanner.take('"') || scanner.take('\'') ? scanner.until(quote) : std::string_view();
}

std::optional<Shape> rectangle(const Attributes& at) {
    const double x = at.length(Property::X, Axis::Horizontal);
    const double y = at.length(Property::Y, Axis::Vertical);
    const double width = at.length(Property::Width, Axis::Horizontal);
    const double height = at.length(Property::Height, Axis::Vertical);
    if (!(width > 0 && height > 0))
        return std::nullopt;
    const auto rx = at.given(Property::Rx, Axis::Horizontal);
    const auto ry = at.given(Property::Ry, Axis::Vertical);
    // A radius that is not given is the other one.
    return Shape{Kind::Rect,
                 drawing::roundedRectanglePath({x, y, x + width, y + height}, rx.value_or(ry.value_or(0)),
                                               ry.value_or(rx.value_or(0))),
                 {}};
}

std::optional<Shape> ellipse(const Attributes& at, std::optional<double> rx, std::optional<double> ry) {
    const double radiusX = rx.value_or(ry.value_or(0));
    const double radiusY = ry.value_or(rx.value_or(0));
    if (!(radiusX > 0 && radiusY > 0))
        return std::nullopt;
    return Shape{Kind::Ellipse,
                 drawing::ellipsePath(
                     {at.length(Property::Cx, Axis::Horizontal), at.length(Property::Cy, Axis::Vertical)},
                     radiusX, radiusY),
                 {}};
}

std::optional<Shape> line(const Attributes& at) {
    const Point from{at.length("x1", Axis::Horizontal), at.length("y1", Axis::Vertical)};
    const Point to{at.length("x2", Axis::Horizontal), at.length("y2", Axis::Vertical)};
    return Shape{Kind::Line, drawing::polylinePath({from, to}), {}};
}

std::optional<Shape> orNothing(Kind kind, Path outline) {
    if (outline.empty())
        return std::nullopt;
    return Shape{kind, std::move(outline), {}};
}

std::optional<Shape> path(std::string_view text) {
    PathData data = parsePathData(text);
    auto shape = orNothing(Kind::Path, std::move(data.path));
    if (shape)
        shape->insideArcs = std::move(data.insideArcs);
    return shape;
}

} // namespace

bool isShape(std::string_view svgName) {
    static constexpr std::array<std::string_view, 7> kNames = {"path",    "rect",     "circle", "ellipse",
                                                               "polygon", "polyline", "line"};
    return std::find(kNames.begin(), kNames.end(), svgName) != kNames.end();
}

std::optional<Shape> readShape(pugi::xml_node element, std::string_view svgName, const StatedStyle& stated,
                               const LengthContext& lengths) {
    const Attributes at(element, stated, lengths);
    if (svgName == "path")
        return path(pathText(at.text(Property::D)));
    if (svgName == "rect")
        return rectangle(at);
    if (svgName == "circle")
        return ellipse(at, at.given(Property::R, Axis::Other), std::nullopt);
    if (svgName == "ellipse")
        return ellipse(at, at.given(Property::Rx, Axis::Horizontal), at.given(Property::Ry, Axis::Vertical));
    if (svgName == "polygon")
        return orNothing(Kind::Polygon, drawing::polygonPath(parsePoints(at.text("points"))));
    if (svgName == "polyline")
        return orNothing(Kind::Polyline, drawing::polylinePath(parsePoints(at.text("points"))));
    if (svgName == "line")
        return line(at);
    return std::nullopt;
}

} // namespace easel::svg
