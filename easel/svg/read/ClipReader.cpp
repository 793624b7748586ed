#include "easel/svg/read/ClipReader.h"

#include "easel/svg/read/Shapes.h"
#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Transform.h"

#include <algorithm>
#include <string>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;
using drawing::ClipPath;

namespace {

// Clip paths are read, and painted, by recursion.
constexpr std::size_t kDeepestClip = 64;

bool isShareOfBox(pugi::xml_node clipPath) {
    return std::string_view(clipPath.attribute("clipPathUnits").value()) == "objectBoundingBox";
}

} // namespace

std::shared_ptr<const ClipPath> rectangleClip(const Box& box, const Affine& toDrawing) {
    auto outline = placedPath(drawing::rectanglePath(box), toDrawing);
    if (!outline)
        return nullptr;
    auto clip = std::make_shared<ClipPath>();
    clip->shapes.push_back({std::move(*outline), drawing::FillRule::NonZero, nullptr});
    return clip;
}

ClipReader::ClipPtr ClipReader::clipFor(const StatedStyle& stated, const Box& box, const Place& place) {
    const std::string_view reference = stated[Property::ClipPath];
    if (reference.empty() || equalIgnoringCase(reference, "none"))
        return nullptr;
    const std::string_view id = localId(reference);
    if (id.empty()) {
        scene_.notes.add(reference.substr(0, 4) == "url(" ? Unshown::External : Unshown::ClipShape);
        return nullptr;
    }
    const pugi::xml_node element = scene_.tree.byId(id);
    if (scene_.tree.svgName(element) != "clipPath")
        return nullptr;
    if (open_.size() == kDeepestClip || std::find(open_.begin(), open_.end(), element) != open_.end()) {
        scene_.notes.add(open_.size() == kDeepestClip ? Unshown::DeepLayer : Unshown::Circle);
        return nullptr;
    }
    open_.push_back(element);
    ClipPtr clip = read(element, box, place);
    open_.pop_back();
    return clip;
}

bool ClipReader::asksForBox(const StatedStyle& stated) const {
    return isShareOfBox(scene_.tree.byId(localId(stated[Property::ClipPath])));
}

ClipReader::ClipPtr ClipReader::read(pugi::xml_node element, const Box& box, const Place& place) {
    const bool fractions = isShareOfBox(element);
    if (fractions && box.empty()) {
        scene_.notes.add(Unshown::ClipShape);
        return nullptr;
    }
    const StatedStyle stated = scene_.cascade.of(element);
    Place inside = place;
    inside.style = ComputedStyle().inherited(stated, inside.lengths);
    inside.toDrawing = place.toDrawing * parseTransform(stated[Property::Transform]).value_or(Affine());
    if (fractions)
        inside.toDrawing = inside.toDrawing * Affine{box.width(), 0, 0, box.height(), box.left, box.top};
    if (element == lastElement_ && inside.toDrawing == lastPlace_)
        return last_;

    auto clip = std::make_shared<ClipPath>();
    clip->clip = clipFor(stated, box, place);
    for (const pugi::xml_node child : element.children())
        addShape(*clip, child, inside);
    lastElement_ = element;
    lastPlace_ = inside.toDrawing;
    last_ = clip;
    return clip;
}

void ClipReader::addShape(ClipPath& clip, pugi::xml_node child, const Place& place) {
    const StatedStyle stated = scene_.cascade.of(child);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return;
    Place inside = place;
    inside.style = place.style.inherited(stated, inside.lengths);
    inside.toDrawing = place.toDrawing * parseTransform(stated[Property::Transform]).value_or(Affine());
    std::string_view name = scene_.tree.svgName(child);
    if (name == "text")
        scene_.notes.add(Unshown::Text);
    pugi::xml_node element = child;
    if (name == "use") {
        const double x =
            parseLength(child.attribute("x").value(), inside.lengths, Axis::Horizontal).value_or(0);
        const double y =
            parseLength(child.attribute("y").value(), inside.lengths, Axis::Vertical).value_or(0);
        element = scene_.tree.byId(localId(hrefOf(child)));
        name = scene_.tree.svgName(element);
        const StatedStyle own = scene_.cascade.of(element);
        inside.style = inside.style.inherited(own, inside.lengths);
        inside.toDrawing = inside.toDrawing * Affine::translation(x, y) *
                           parseTransform(own[Property::Transform]).value_or(Affine());
    }
    if (!inside.style.visible)
        return;
    const auto shape = readShape(element, name, inside.lengths);
    if (!shape)
        return;
    scene_.budget.spend(Budget::kObject + shape->outline.points().size());
    auto outline = placedPath(shape->outline, inside.toDrawing);
    if (!outline)
        return scene_.notes.add(Unshown::OutOfRange);
    clip.shapes.push_back(
        {std::move(*outline), inside.style.clipRule, clipFor(stated, shape->outline.bounds(), inside)});
}

} // namespace easel::svg
