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

class Attributes {
  public:
    Attributes(pugi::xml_node element, const LengthContext& lengths) : element_(element), lengths_(lengths) {}

    std::string_view text(const char* name) const { return element_.attribute(name).value(); }
    // Nothing for "auto", too.
    std::optional<double> given(const char* name, Axis axis) const {
        return parseLength(text(name), lengths_, axis);
    }
    double length(const char* name, Axis axis) const { return given(name, axis).value_or(0); }

  private:
    pugi::xml_node element_;
    const LengthContext& lengths_;
};

std::optional<Shape> rectangle(const Attributes& at) {
    const double x = at.length("x", Axis::Horizontal);
    const double y = at.length("y", Axis::Vertical);
    const double width = at.length("width", Axis::Horizontal);
    const double height = at.length("height", Axis::Vertical);
    if (!(width > 0 && height > 0))
        return std::nullopt;
    const auto rx = at.given("rx", Axis::Horizontal);
    const auto ry = at.given("ry", Axis::Vertical);
    // A radius that is not given is the other one.
    return Shape{Kind::Rect,
                 drawing::roundedRectanglePath({x, y, x + width, y + height}, rx.value_or(ry.value_or(0)),
                                               ry.value_or(rx.value_or(0)))};
}

std::optional<Shape> ellipse(const Attributes& at, std::optional<double> rx, std::optional<double> ry) {
    const double radiusX = rx.value_or(ry.value_or(0));
    const double radiusY = ry.value_or(rx.value_or(0));
    if (!(radiusX > 0 && radiusY > 0))
        return std::nullopt;
    return Shape{Kind::Ellipse,
                 drawing::ellipsePath({at.length("cx", Axis::Horizontal), at.length("cy", Axis::Vertical)},
                                      radiusX, radiusY)};
}

std::optional<Shape> line(const Attributes& at) {
    const Point from{at.length("x1", Axis::Horizontal), at.length("y1", Axis::Vertical)};
    const Point to{at.length("x2", Axis::Horizontal), at.length("y2", Axis::Vertical)};
    return Shape{Kind::Line, drawing::polylinePath({from, to})};
}

std::optional<Shape> orNothing(Kind kind, Path outline) {
    if (outline.empty())
        return std::nullopt;
    return Shape{kind, std::move(outline)};
}

} // namespace

bool isShape(std::string_view svgName) {
    static constexpr std::array<std::string_view, 7> kNames = {"path",    "rect",     "circle", "ellipse",
                                                               "polygon", "polyline", "line"};
    return std::find(kNames.begin(), kNames.end(), svgName) != kNames.end();
}

std::optional<Shape> readShape(pugi::xml_node element, std::string_view svgName,
                               const LengthContext& lengths) {
    const Attributes at(element, lengths);
    if (svgName == "path")
        return orNothing(Kind::Path, parsePathData(at.text("d")).path);
    if (svgName == "rect")
        return rectangle(at);
    if (svgName == "circle")
        return ellipse(at, at.given("r", Axis::Other), std::nullopt);
    if (svgName == "ellipse")
        return ellipse(at, at.given("rx", Axis::Horizontal), at.given("ry", Axis::Vertical));
    if (svgName == "polygon")
        return orNothing(Kind::Polygon, drawing::polygonPath(parsePoints(at.text("points"))));
    if (svgName == "polyline")
        return orNothing(Kind::Polyline, drawing::polylinePath(parsePoints(at.text("points"))));
    if (svgName == "line")
        return line(at);
    return std::nullopt;
}

} // namespace easel::svg
