#include "easel/svg/read/TextPath.h"

#include "easel/svg/read/Shapes.h"
#include "easel/svg/style/PlacedTransform.h"
#include "easel/svg/text/PathData.h"
#include "easel/svg/text/Scanner.h"
#include "easel/type/PathMeasure.h"

#include <utility>

namespace easel::svg {

using drawing::Path;
using drawing::Verb;

namespace {

// About as many straight pieces a curve is measured by.
constexpr std::size_t kPiecesOfCurve = 32;

// The same path from its end to its beginning. A line closes what was closed.
Path reversed(const Path& path) {
    Path result;
    const auto points = path.points();
    std::size_t at = points.size();
    const auto verbs = path.verbs();
    bool open = false;
    for (std::size_t i = verbs.size(); i-- > 0;) {
        const Verb verb = verbs[i];
        if (verb == Verb::Close)
            continue;
        if (!std::exchange(open, verb != Verb::Move))
            result.moveTo(points[at - 1]);
        if (verb == Verb::Line && at >= 2)
            result.lineTo(points[at - 2]);
        else if (verb == Verb::Cubic && at >= 4)
            result.cubicTo(points[at - 2], points[at - 3], points[at - 4]);
        at -= verb == Verb::Cubic ? 3 : 1;
    }
    return result;
}

// The path in the text's units, and what the file says its length is.
struct TextRoute {
    Path path;
    std::optional<double> statedLength;
};

TextRoute routeOf(pugi::xml_node textPath, const Scene& scene, const LengthContext& lengths) {
    if (const pugi::xml_attribute own = textPath.attribute("path"))
        return {parsePathData(own.value()).path, std::nullopt};
    const pugi::xml_node element = scene.tree.byId(localId(hrefOf(textPath)));
    const StatedStyle stated = scene.cascade.of(element);
    const auto shape = readShape(element, scene.tree.svgName(element), stated, lengths);
    if (!shape)
        return {};
    return {shape->outline.transformed(transformOf(stated, lengths, shape->outline.bounds())),
            parseFraction(element.attribute("pathLength").value())};
}

} // namespace

type::AlongPath pathOfText(pugi::xml_node textPath, const Scene& scene, const LengthContext& lengths) {
    TextRoute route = routeOf(textPath, scene, lengths);
    scene.budget.spend(kPiecesOfCurve * route.path.points().size());
    type::AlongPath along;
    const double length = type::PathMeasure(route.path).length();
    const std::string_view start = textPath.attribute("startOffset").value();
    const double scale = route.statedLength && *route.statedLength > 0 ? length / *route.statedLength : 1;
    if (start.ends_with('%'))
        along.start = parseFraction(start).value_or(0) * length;
    else
        along.start = parseLength(start, lengths, Axis::Other).value_or(0) * scale;
    const bool otherSide = std::string_view(textPath.attribute("side").value()) == "right";
    along.path = otherSide ? reversed(route.path) : std::move(route.path);
    return along;
}

} // namespace easel::svg
