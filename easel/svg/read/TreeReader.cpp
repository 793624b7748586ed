#include "easel/svg/read/TreeReader.h"

#include "easel/svg/read/Viewport.h"
#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Tags.h"
#include "easel/svg/text/Transform.h"

#include <algorithm>
#include <string>
#include <utility>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;
using drawing::Group;
using drawing::GroupPtr;
using drawing::Object;

namespace {

// How often, in elements, progress is told.
constexpr std::size_t kTick = 512;

// What a drawing measures that does not say.
constexpr double kUsualWidth = 300;
constexpr double kUsualHeight = 150;

GroupPtr groupWith(const GroupPtr& parent, double opacity, std::shared_ptr<const drawing::ClipPath> clip) {
    if (opacity >= 1 && !clip)
        return parent;
    return std::make_shared<const Group>(
        Group{parent, opacity, std::move(clip), parent ? parent->depth + 1 : 1});
}

// Whether a child of a `switch` is for this program and its user.
bool accepts(pugi::xml_node child) {
    const pugi::xml_attribute extensions = child.attribute("requiredExtensions");
    if (extensions && !trimmed(extensions.value()).empty())
        return false;
    const pugi::xml_attribute languages = child.attribute("systemLanguage");
    if (!languages)
        return true;
    Scanner scanner(languages.value());
    while (!scanner.done()) {
        const std::string_view language = trimmed(scanner.until(','));
        if (equalIgnoringCase(language.substr(0, 2), "en") && (language.size() == 2 || language[2] == '-'))
            return true;
    }
    return false;
}

std::string_view attributeText(pugi::xml_node element, const char* name) {
    return element.attribute(name).value();
}

} // namespace

TreeReader::TreeReader(const Scene& scene, Source& source, std::function<bool(double)> progress)
    : scene_(scene), source_(source), progress_(std::move(progress)), clips_(scene), reader_(scene) {}

void TreeReader::tick() {
    if (++visited_ % kTick != 0 || !progress_)
        return;
    const auto visited = static_cast<double>(visited_);
    const double part = visited / (static_cast<double>(scene_.tree.elementCount()) + visited / 2);
    if (!progress_(std::min(part, 1.0)))
        throw ReadError{Fault::Cancelled, "opening it was cancelled"};
}

Place TreeReader::rootPlace() {
    const pugi::xml_node root = scene_.tree.root();
    const auto viewBox = parseViewBox(attributeText(root, "viewBox"));
    Place place;
    place.lengths.viewportWidth = viewBox ? viewBox->width : kUsualWidth;
    place.lengths.viewportHeight = viewBox ? viewBox->height : kUsualHeight;
    const auto side = [&](const char* name, Axis axis) {
        const auto length = parseLength(attributeText(root, name), place.lengths, axis);
        return length && *length > 0 ? *length : place.lengths.whole(axis);
    };
    size_ = {side("width", Axis::Horizontal), side("height", Axis::Vertical)};
    requireInRange(size_.width);
    requireInRange(size_.height);
    if (viewBox)
        place.toDrawing = fitViewBox(*viewBox, attributeText(root, "preserveAspectRatio"),
                                     {0, 0, size_.width, size_.height});
    else
        std::tie(place.lengths.viewportWidth, place.lengths.viewportHeight) =
            std::pair(size_.width, size_.height);
    return place;
}

void TreeReader::readRoot() {
    const Place outside = rootPlace();
    source_.rootToDrawing = outside.toDrawing;
    Place inside;
    if (!enter(scene_.tree.root(), outside, inside))
        return;
    inside.lengths.rootFontSize = inside.lengths.fontSize;
    readChildren(scene_.tree.root(), inside);
}

bool TreeReader::enter(pugi::xml_node element, const Place& outside, Place& inside) {
    const StatedStyle stated = scene_.cascade.of(element);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return false;
    inside = outside;
    inside.style = outside.style.inherited(stated, inside.lengths);
    inside.toDrawing = outside.toDrawing * parseTransform(stated[Property::Transform]).value_or(Affine());
    inside.group = groupWith(outside.group, parseOpacity(stated[Property::Opacity], 1),
                             clips_.clipFor(stated, Box(), inside));
    noteEffects(stated);
    return true;
}

void TreeReader::noteEffects(const StatedStyle& stated) {
    const auto note = [&](Property property, std::string_view harmless, Unshown what) {
        if (!stated[property].empty() && !equalIgnoringCase(stated[property], harmless))
            scene_.notes.add(what);
    };
    note(Property::Filter, "none", Unshown::Filter);
    note(Property::Mask, "none", Unshown::Mask);
    note(Property::MixBlendMode, "normal", Unshown::Blending);
    note(Property::VectorEffect, "none", Unshown::FixedStroke);
    for (const Property marker :
         {Property::Marker, Property::MarkerStart, Property::MarkerMid, Property::MarkerEnd})
        note(marker, "none", Unshown::Marker);
}

void TreeReader::readElement(pugi::xml_node element, const Place& place) {
    if (place.depth > kDeepest)
        throw ReadError{Fault::TooDeep,
                        "its elements are nested more than " + std::to_string(kDeepest) + " deep"};
    tick();
    const std::string_view name = scene_.tree.svgName(element);
    if (name.empty())
        return;
    if (isShape(name))
        readShapeElement(element, name, place);
    else if (name == "g" || name == "a" || name == "svg" || name == "switch" || name == "use")
        readContainer(element, name, place);
    else
        scene_.notes.addElement(name);
}

void TreeReader::readChildren(pugi::xml_node element, const Place& place) {
    for (const pugi::xml_node child : element.children())
        if (child.type() == pugi::node_element)
            readElement(child, place);
}

void TreeReader::readContainer(pugi::xml_node element, std::string_view name, const Place& place) {
    Place inside;
    if (!enter(element, place, inside))
        return;
    ++inside.depth;
    if (name == "use")
        readUse(element, inside);
    else if (name == "svg")
        readChildren(element, viewportPlace(element, {}, inside));
    else if (name == "switch")
        readSwitch(element, inside);
    else
        readChildren(element, inside);
}

void TreeReader::readSwitch(pugi::xml_node element, const Place& place) {
    for (const pugi::xml_node child : element.children()) {
        if (scene_.tree.svgName(child).empty() || !accepts(child))
            continue;
        source_.chosen.insert(scene_.tree.tagBegin(child));
        readElement(child, place);
        return;
    }
}

void TreeReader::readShapeElement(pugi::xml_node element, std::string_view name, const Place& place) {
    const StatedStyle stated = scene_.cascade.of(element);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return;
    Place inside = place;
    inside.style = place.style.inherited(stated, inside.lengths);
    if (!inside.style.visible)
        return;
    const auto shape = readShape(element, name, inside.lengths);
    if (!shape)
        return;
    noteEffects(stated);
    for (const pugi::xml_node child : element.children())
        scene_.notes.addElement(scene_.tree.svgName(child));
    inside.toDrawing = place.toDrawing * parseTransform(stated[Property::Transform]).value_or(Affine());
    Object object = reader_.read(element, *shape, parseOpacity(stated[Property::Opacity], 1), inside);
    object.group = groupWith(place.group, 1, clips_.clipFor(stated, shape->outline.bounds(), inside));
    const std::size_t begin = scene_.tree.tagBegin(element);
    object.source = {static_cast<std::uint32_t>(begin),
                     static_cast<std::uint32_t>(tagEnd(source_.text(), begin)), place.use};
    source_.objects.push_back(object.source);
    objects_.push_back(sealed(std::move(object)));
}

void TreeReader::readUse(pugi::xml_node element, const Place& place) {
    const std::string_view reference = hrefOf(element);
    const std::string_view id = localId(reference);
    if (id.empty() && !reference.empty())
        scene_.notes.add(Unshown::External);
    const pugi::xml_node target = scene_.tree.byId(id);
    if (!target)
        return;
    const bool above = [&] {
        for (pugi::xml_node node = element; node; node = node.parent())
            if (node == target)
                return true;
        return false;
    }();
    if (above || std::find(open_.begin(), open_.end(), target) != open_.end())
        throw ReadError{Fault::Circular,
                        "the element \"" + std::string(id) + "\" repeats itself by way of 'use'"};
    scene_.budget.spend(1);
    open_.push_back(target);
    readTarget(element, target, place);
    open_.pop_back();
}

void TreeReader::readTarget(pugi::xml_node use, pugi::xml_node target, const Place& place) {
    Place inside = place;
    addRepetition(use, target, inside);
    const double x = parseLength(attributeText(use, "x"), place.lengths, Axis::Horizontal).value_or(0);
    const double y = parseLength(attributeText(use, "y"), place.lengths, Axis::Vertical).value_or(0);
    inside.toDrawing = inside.toDrawing * Affine::translation(x, y);
    const std::string_view name = scene_.tree.svgName(target);
    if (name != "symbol" && name != "svg") {
        readElement(target, inside);
        return;
    }
    Place own;
    if (!enter(target, inside, own))
        return;
    ++own.depth;
    readChildren(target, viewportPlace(target, use, own));
}

void TreeReader::addRepetition(pugi::xml_node use, pugi::xml_node target, Place& place) {
    source_.repetitions.push_back({place.use, static_cast<std::uint32_t>(scene_.tree.tagBegin(use)),
                                   static_cast<std::uint32_t>(scene_.tree.tagBegin(target))});
    place.use = static_cast<std::uint32_t>(source_.repetitions.size());
}

Place TreeReader::viewportPlace(pugi::xml_node element, pugi::xml_node use, const Place& outside) {
    const auto length = [&](pugi::xml_node from, const char* name, Axis axis) {
        return parseLength(attributeText(from, name), outside.lengths, axis);
    };
    const auto side = [&](const char* name, Axis axis) {
        const auto given = use ? length(use, name, axis) : std::nullopt;
        return given ? *given : length(element, name, axis).value_or(outside.lengths.whole(axis));
    };
    const double x = length(element, "x", Axis::Horizontal).value_or(0);
    const double y = length(element, "y", Axis::Vertical).value_or(0);
    const Box viewport{x, y, x + side("width", Axis::Horizontal), y + side("height", Axis::Vertical)};

    Place inside = outside;
    const std::string overflow(scene_.cascade.of(element)[Property::Overflow]);
    if (!equalIgnoringCase(overflow, "visible") && !equalIgnoringCase(overflow, "auto"))
        inside.group = groupWith(outside.group, 1, rectangleClip(viewport, outside.toDrawing));
    const auto viewBox = parseViewBox(attributeText(element, "viewBox"));
    inside.lengths.viewportWidth = viewBox ? viewBox->width : viewport.width();
    inside.lengths.viewportHeight = viewBox ? viewBox->height : viewport.height();
    inside.toDrawing =
        outside.toDrawing *
        (viewBox ? fitViewBox(*viewBox, attributeText(element, "preserveAspectRatio"), viewport)
                 : Affine::translation(x, y));
    return inside;
}

} // namespace easel::svg
