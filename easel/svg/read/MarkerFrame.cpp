#include "easel/svg/read/MarkerFrame.h"

#include "easel/svg/read/Viewport.h"
#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Transform.h"

namespace easel::svg {

using drawing::Affine;
using drawing::Point;

namespace {

constexpr double kUsualSide = 3;

double sideOf(pugi::xml_node marker, const char* name, const LengthContext& lengths, Axis axis) {
    const pugi::xml_attribute given = marker.attribute(name);
    return given ? parseLength(given.value(), lengths, axis).value_or(kUsualSide) : kUsualSide;
}

// The place of the marker that lies on the vertex, in the units of its content.
double referenceOf(std::string_view text, double begin, double size, std::string_view low,
                   std::string_view high, const LengthContext& lengths, Axis axis) {
    text = trimmed(text);
    if (equalIgnoringCase(text, low))
        return begin;
    if (equalIgnoringCase(text, "center"))
        return begin + size / 2;
    if (equalIgnoringCase(text, high))
        return begin + size;
    return parseLength(text, lengths, axis).value_or(0);
}

double degreesOf(std::string_view orient, const MarkerVertex& vertex) {
    orient = trimmed(orient);
    if (equalIgnoringCase(orient, "auto"))
        return vertex.degrees;
    if (equalIgnoringCase(orient, "auto-start-reverse"))
        return vertex.degrees + (vertex.slot == MarkerVertex::Slot::Start ? 180 : 0);
    return parseDegrees(orient).value_or(0);
}

} // namespace

std::optional<MarkerFrame> markerFrame(pugi::xml_node marker, const MarkerVertex& vertex, double strokeWidth,
                                       const LengthContext& lengths) {
    const double width = sideOf(marker, "markerWidth", lengths, Axis::Horizontal);
    const double height = sideOf(marker, "markerHeight", lengths, Axis::Vertical);
    const bool byStroke = std::string_view(marker.attribute("markerUnits").value()) != "userSpaceOnUse";
    const double unit = byStroke ? strokeWidth : 1;
    if (!(width > 0 && height > 0 && unit > 0))
        return std::nullopt;

    MarkerFrame frame;
    frame.viewport = {0, 0, width, height};
    const auto given = parseViewBox(marker.attribute("viewBox").value());
    if (given)
        frame.toViewport =
            fitViewBox(*given, marker.attribute("preserveAspectRatio").value(), frame.viewport);
    const ViewBox box = given.value_or(ViewBox{0, 0, width, height});
    frame.width = box.width;
    frame.height = box.height;
    const LengthContext inside{box.width, box.height, lengths.fontSize, lengths.rootFontSize};
    const Point reference =
        frame.toViewport(Point{referenceOf(marker.attribute("refX").value(), box.x, box.width, "left",
                                           "right", inside, Axis::Horizontal),
                               referenceOf(marker.attribute("refY").value(), box.y, box.height, "top",
                                           "bottom", inside, Axis::Vertical)});
    frame.toShape = Affine::translation(vertex.at.x, vertex.at.y) *
                    Affine::rotation(degreesOf(marker.attribute("orient").value(), vertex)) *
                    Affine::scaling(unit, unit) * Affine::translation(-reference.x, -reference.y);
    return frame;
}

} // namespace easel::svg
