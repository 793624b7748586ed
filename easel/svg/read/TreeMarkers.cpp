// Reads the markers of a shape: what a marker element holds, once for each vertex that shows it.
#include "easel/svg/read/MarkerFrame.h"
#include "easel/svg/read/MarkerVertices.h"
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <utility>

namespace easel::svg {

namespace {

// Shapes in markers may have markers, which are read by recursion.
constexpr std::size_t kDeepestMarker = 8;

bool takesMarkers(drawing::Kind kind) {
    return kind == drawing::Kind::Path || kind == drawing::Kind::Line || kind == drawing::Kind::Polyline ||
           kind == drawing::Kind::Polygon;
}

} // namespace

bool TreeReader::hasMarkers(const Shape& shape, const Place& place) {
    const auto& ids = place.style.markers;
    const auto isNone = [](std::string_view id) { return id.empty(); };
    return takesMarkers(shape.kind) && !std::all_of(ids.begin(), ids.end(), isNone);
}

void TreeReader::addMarkers(drawing::Object& object, const Shape& shape, const Place& place) {
    if (!hasMarkers(shape, place))
        return;
    const auto& ids = place.style.markers;
    Place context = place;
    context.style.context = reader_.contextOf(ContextPaints::Giver::Shape, shape.box(), place);
    std::vector<drawing::ObjectPtr> markers;
    for (const MarkerVertex& vertex : markerVertices(shape)) {
        const pugi::xml_node marker = scene_.tree.byId(ids[static_cast<std::size_t>(vertex.slot)]);
        if (scene_.tree.svgName(marker) == "marker")
            readMarker(marker, vertex, context, markers);
    }
    if (!markers.empty())
        object.markers = drawing::makeShared<const std::vector<drawing::ObjectPtr>>(std::move(markers));
}

void TreeReader::readMarker(pugi::xml_node marker, const MarkerVertex& vertex, const Place& shape,
                            std::vector<drawing::ObjectPtr>& markers) {
    if (std::find(openMarkers_.begin(), openMarkers_.end(), marker) != openMarkers_.end())
        return scene_.notes.add(Unsupported::Circle);
    if (openMarkers_.size() == kDeepestMarker)
        return scene_.notes.add(Unsupported::DeepLayer);
    scene_.budget.spend(1);
    const auto frame = markerFrame(marker, vertex, shape.style.strokeWidth, shape.lengths);
    if (!frame)
        return;
    Place inside = placeAround(marker);
    const StatedStyle stated = scene_.cascade.of(marker, inside.style.custom);
    inside.style = inside.style.inherited(stated, inside.lengths);
    inside.style.context = shape.style.context;
    inside.lengths.viewportWidth = frame->width;
    inside.lengths.viewportHeight = frame->height;
    const drawing::Affine toDrawing = shape.toDrawing * frame->toShape;
    inside.toDrawing = toDrawing * frame->toViewport;
    noteEffects(stated);
    Inside content = inLayer(marker, stated, std::move(inside), markers.size(), 0);
    if (!showsOverflow(stated))
        narrow(content.place, rectangleClip(frame->viewport, toDrawing));

    openMarkers_.push_back(marker);
    readApart(marker, std::move(content), markers);
    openMarkers_.pop_back();
}

// The style that the elements around hand down, wherever a marker or pattern is shown.
Place TreeReader::placeAround(pugi::xml_node element) const {
    return svg::placeAround(scene_, element);
}

void TreeReader::readApart(pugi::xml_node element, Inside inside, std::vector<drawing::ObjectPtr>& objects) {
    readApart(Work{std::move(inside), element.first_child()}, objects);
}

void TreeReader::readApart(Work first, std::vector<drawing::ObjectPtr>& objects) {
    std::swap(objects_, objects);
    auto work = std::exchange(work_, {});
    auto open = std::exchange(open_, {});
    auto hidden = std::exchange(hidden_, {});
    const std::size_t waiting = std::exchange(waiting_, first.inside.waiting ? 1 : 0);
    ++apart_;
    work_.push_back(std::move(first));
    readAll();
    --apart_;
    hidden_ = std::move(hidden);
    waiting_ = waiting;
    std::swap(objects_, objects);
    work_ = std::move(work);
    open_ = std::move(open);
}

} // namespace easel::svg
