#include "easel/svg/read/ClipReader.h"

#include "easel/svg/read/TextReader.h"
#include "easel/svg/style/PlacedTransform.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <utility>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;
using drawing::ClipPath;
using drawing::ClipShape;

namespace {

// Clip paths are read, and painted, by recursion.
constexpr std::size_t kDeepestClip = 64;

std::shared_ptr<const ClipPath> bothClips(const std::shared_ptr<const ClipPath>& one,
                                          const std::shared_ptr<const ClipPath>& other) {
    if (!one || !other)
        return one ? one : other;
    auto both = std::make_shared<ClipPath>(*one);
    both->clip = bothClips(one->clip, other);
    return both;
}

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
        scene_.notes.add(reference.substr(0, 4) == "url(" ? Unsupported::External : Unsupported::ClipShape);
        return nullptr;
    }
    const pugi::xml_node element = scene_.tree.byId(id);
    if (scene_.tree.svgName(element) != "clipPath")
        return nullptr;
    if (open_.size() == kDeepestClip || std::find(open_.begin(), open_.end(), element) != open_.end()) {
        scene_.notes.add(open_.size() == kDeepestClip ? Unsupported::DeepLayer : Unsupported::Circle);
        return nullptr;
    }
    boxAsked_ = boxAsked_ && !open_.empty();
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
        scene_.notes.add(Unsupported::ClipShape);
        return nullptr;
    }
    const StatedStyle stated = scene_.cascade.of(element, place.style.custom);
    Place inside = place;
    inside.style = ComputedStyle().inherited(stated, inside.lengths);
    inside.toDrawing = place.toDrawing * transformOf(stated, inside.lengths, Box());
    boxAsked_ = boxAsked_ || fractions;
    if (fractions)
        inside.toDrawing = inside.toDrawing * boxUnits(box);
    if (element == lastElement_ && inside.toDrawing == lastPlace_)
        return last_;

    auto clip = std::make_shared<ClipPath>();
    clip->clip = clipFor(stated, box, place);
    for (const pugi::xml_node child : element.children())
        addShape(*clip, child, inside);
    if (!boxAsked_) {
        lastElement_ = element;
        lastPlace_ = inside.toDrawing;
        last_ = clip;
    }
    return clip;
}

void ClipReader::addShape(ClipPath& clip, pugi::xml_node child, const Place& place) {
    const std::string_view name = scene_.tree.svgName(child);
    if (name == "text") {
        // Its font may be stated further out, where nothing is that changes other shapes.
        Place around = place;
        around.style = placeAround(scene_, child).style;
        around.lengths.fontSize = around.style.fontSize;
        if (auto shape = shapeOf(child, around))
            clip.shapes.push_back(std::move(*shape));
        return;
    }
    auto shape = name == "use" ? repeatedShape(child, place) : shapeOf(child, place);
    if (shape)
        clip.shapes.push_back(std::move(*shape));
}

std::optional<ClipShape> ClipReader::shapeOf(pugi::xml_node element, const Place& place) {
    const StatedStyle stated = scene_.cascade.of(element, place.style.custom);
    Place inside = place;
    inside.style = place.style.inherited(stated, inside.lengths);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return std::nullopt;
    auto shape = visibleShape(element, stated, inside);
    if (!shape)
        return std::nullopt;
    scene_.budget.spend(Budget::kObject + shape->outline.points().size());
    const Box box = shape->box();
    inside.toDrawing = place.toDrawing * transformOf(stated, inside.lengths, box);
    auto outline = placedPath(std::move(shape->outline), inside.toDrawing);
    if (!outline) {
        scene_.notes.add(Unsupported::OutOfRange);
        return std::nullopt;
    }
    return ClipShape{std::move(*outline), inside.style.clipRule, clipFor(stated, box, inside)};
}

std::optional<Shape> ClipReader::visibleShape(pugi::xml_node element, const StatedStyle& stated,
                                              const Place& place) {
    const std::string_view name = scene_.tree.svgName(element);
    if (name == "text") {
        const auto text = readText(element, stated, scene_, place);
        return text ? std::optional(Shape{drawing::Kind::Text, text->wholeOutline(), {}, text->cells})
                    : std::nullopt;
    }
    return place.style.visible ? readShape(element, name, stated, place.lengths) : std::nullopt;
}

std::optional<ClipShape> ClipReader::repeatedShape(pugi::xml_node use, const Place& place) {
    const StatedStyle stated = scene_.cascade.of(use, place.style.custom);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return std::nullopt;
    Place inside = place;
    inside.style = place.style.inherited(stated, inside.lengths);
    inside.toDrawing = place.toDrawing * transformOf(stated, inside.lengths, Box());
    Place moved = inside;
    moved.toDrawing =
        inside.toDrawing *
        Affine::translation(parseLength(stated[Property::X], inside.lengths, Axis::Horizontal).value_or(0),
                            parseLength(stated[Property::Y], inside.lengths, Axis::Vertical).value_or(0));
    auto shape = shapeOf(scene_.tree.byId(localId(hrefOf(use))), moved);
    if (shape) {
        const Box box = shape->outline.transformed(inside.toDrawing.inverse()).bounds();
        shape->clip = bothClips(shape->clip, clipFor(stated, box, inside));
    }
    return shape;
}

} // namespace easel::svg
