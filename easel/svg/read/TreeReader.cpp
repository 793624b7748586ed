#include "easel/svg/read/TreeReader.h"

#include "easel/svg/read/Conditions.h"
#include "easel/svg/read/Viewport.h"
#include "easel/svg/style/PlacedTransform.h"
#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Tags.h"

#include <algorithm>
#include <string>
#include <utility>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;
using drawing::Object;

namespace {

// How often, in elements, progress is told.
constexpr std::size_t kTick = 512;

// Use instances are written out by recursion.
constexpr std::size_t kDeepestUse = 500;
// How many steps up the tree cost as much as a point.
constexpr std::size_t kStepsUp = 16;

bool asksForContext(const PaintSpec& paint) {
    return paint.kind == PaintSpec::Kind::ContextFill || paint.kind == PaintSpec::Kind::ContextStroke;
}

std::string_view attributeText(pugi::xml_node element, const char* name) {
    return element.attribute(name).value();
}

} // namespace

TreeReader::TreeReader(const Scene& scene, Source& source, std::function<bool(double)> progress)
    : scene_(scene), source_(source), progress_(std::move(progress)), clips_(scene),
      filters_(scene, [this](pugi::xml_node effect, const Box& region,
                             const Place& place) { return readFilterImage(effect, region, place); }),
      reader_(scene,
              [this](pugi::xml_node pattern, const PaintPlace& at) { return readPattern(pattern, at); }),
      pictures_(scene) {}

void TreeReader::tick() {
    if (++visited_ % kTick != 0 || !progress_)
        return;
    const auto visited = static_cast<double>(visited_);
    const double part = visited / (static_cast<double>(scene_.tree.elementCount()) + visited / 2);
    if (!progress_(std::min(part, 1.0)))
        throw ReadError{std::make_error_code(std::errc::operation_canceled), "opening it was cancelled"};
}

Place TreeReader::rootPlace() {
    const pugi::xml_node root = scene_.tree.root();
    const auto viewBox = parseViewBox(attributeText(root, "viewBox"));
    Place place;
    place.lengths.viewportWidth = viewBox ? viewBox->width : kUsualSize.width;
    place.lengths.viewportHeight = viewBox ? viewBox->height : kUsualSize.height;
    const StatedStyle stated = scene_.cascade.of(root, nullptr);
    const auto side = [&](Property property, Axis axis) {
        const std::string_view text = stated[property];
        const bool share = !viewBox && text.ends_with('%');
        const auto length = share ? std::nullopt : parseLength(text, place.lengths, axis);
        if (length && !inRange(*length))
            scene_.notes.add(Unsupported::OutOfRange);
        else if (length && *length > 0)
            return *length;
        return 0.0;
    };
    size_ = {side(Property::Width, Axis::Horizontal), side(Property::Height, Axis::Vertical)};
    if (viewBox)
        size_ = completed(size_, *viewBox);
    if (viewBox)
        place.toDrawing = fitViewBox(*viewBox, attributeText(root, "preserveAspectRatio"),
                                     {0, 0, size_.width, size_.height});
    if (!viewBox && size_.width > 0)
        place.lengths.viewportWidth = size_.width;
    if (!viewBox && size_.height > 0)
        place.lengths.viewportHeight = size_.height;
    return place;
}

void TreeReader::readRoot() {
    const Place outside = rootPlace();
    source_.rootToDrawing = outside.toDrawing;
    readFrom(outside);
    size_ = settled(size_, objects_);
}

bool TreeReader::readPlaced(const PlaceEmbedded& place) {
    Place outside = rootPlace();
    const auto placement = place(size_);
    if (!placement)
        return false;
    outside.toDrawing = placement->toDrawing * outside.toDrawing;
    outside.group = placement->group;
    ++apart_;
    readFrom(outside);
    --apart_;
    return true;
}

void TreeReader::readFrom(const Place& outside) {
    auto inside = enter(scene_.tree.root(), outside);
    if (inside) {
        inside->place.lengths.rootFontSize = inside->place.lengths.fontSize;
        readChildren(scene_.tree.root(), std::move(*inside));
        readAll();
    }
}

void TreeReader::readAll() {
    while (!work_.empty()) {
        Work& work = work_.back();
        const pugi::xml_node element = work.next;
        if (!element) {
            finish(work);
            work_.pop_back();
            continue;
        }
        work.next = work.siblingsToo ? element.next_sibling() : pugi::xml_node();
        if (element.type() == pugi::node_element)
            readElement(element, work.inside.place);
    }
}

void TreeReader::finish(const Work& work) {
    if (work.endsUseInstance)
        open_.pop_back();
    if (work.inside.waiting)
        finishGroup(*work.inside.waiting);
}

void TreeReader::readElement(pugi::xml_node element, const Place& place) {
    tick();
    const std::string_view name = scene_.tree.svgName(element);
    if (name.empty())
        return;
    if (isShape(name)) {
        readShapeElement(element, name, place);
        forget(element);
    } else if (name == "image")
        readImage(element, place);
    else if (name == "text")
        readTextElement(element, place);
    else if (name == "g" || name == "a" || name == "svg" || name == "switch" || name == "use")
        readContainer(element, name, place);
    else
        scene_.notes.addElement(name);
}

void TreeReader::readChildren(pugi::xml_node element, Inside inside) {
    work_.push_back({std::move(inside), element.first_child()});
}

void TreeReader::readContainer(pugi::xml_node element, std::string_view name, const Place& place) {
    auto inside = enter(element, place);
    if (!inside)
        return;
    if (name == "use")
        return readUse(element, std::move(*inside));
    if (name == "switch")
        return readSwitch(element, std::move(*inside));
    if (name == "svg")
        inside->place = viewportPlace(element, {}, inside->place);
    readChildren(element, std::move(*inside));
}

void TreeReader::readSwitch(pugi::xml_node element, Inside inside) {
    for (const pugi::xml_node child : element.children()) {
        if (scene_.tree.svgName(child).empty() || !isForUser(child))
            continue;
        source_.chosen.insert(scene_.tree.tagBegin(child));
        work_.push_back({std::move(inside), child, false});
        return;
    }
}

std::optional<TreeReader::Styled> TreeReader::styled(pugi::xml_node element, const Place& place) const {
    Styled start{scene_.cascade.of(element, place.style.custom), place};
    if (equalIgnoringCase(start.stated[Property::Display], "none"))
        return std::nullopt;
    start.inside.style = place.style.inherited(start.stated, start.inside.lengths);
    return start;
}

// What an element took goes to the objects that are made of the next ones.
void TreeReader::forget(pugi::xml_node shape) {
    if (apart_ == 0 && scene_.tree.readOnce() && !shape.first_child() && !shape.attribute("id"))
        shape.parent().remove_child(shape);
}

bool TreeReader::isOutOfSight(const Styled& start) const {
    return !start.inside.style.visible && waiting_ == 0;
}

void TreeReader::readShapeElement(pugi::xml_node element, std::string_view name, const Place& place) {
    auto start = styled(element, place);
    if (!start || isOutOfSight(*start))
        return;
    auto& [stated, inside] = *start;
    auto shape = readShape(element, name, stated, inside.lengths);
    if (!shape)
        return;
    const Box box = shape->outline.bounds();
    inside.toDrawing = place.toDrawing * transformOf(stated, inside.lengths, box);
    if (!inside.style.visible)
        return addHidden(std::move(shape->outline), inside);
    noteEffects(stated);
    for (const pugi::xml_node child : element.children())
        scene_.notes.addElement(scene_.tree.svgName(child));
    // Markers stand on the shape as it is stated; without them it is moved in its place.
    const Shape marked = hasMarkers(*shape, inside) ? *shape : Shape();
    auto object =
        reader_.read(element, *std::move(shape), parseOpacity(stated[Property::Opacity], 1), inside);
    if (!object)
        return;
    addMarkers(*object, marked, inside);
    addObject(std::move(*object), element, stated, box, std::move(inside));
}

void TreeReader::addObject(Object object, pugi::xml_node element, const StatedStyle& stated, const Box& box,
                           Place inside) {
    const std::size_t filters = filters_.countOf(stated);
    drawing::Group effects = effectsOf(stated, box, inside);
    if (filters > 0)
        moveOpacity(object, effects);
    const FilteredGroups filtered = addFiltered(inside, addGroup(inside, std::move(effects)), filters);
    object.group = inside.group;
    if (apart_ == 0)
        addSource(object, element, inside);
    else
        object.id = drawing::Name();
    objects_.push_back(sealed(std::move(object)));
    setFilters(filtered, stated, box, inside, objects_.size() - 1);
}

void TreeReader::addSource(Object& object, pugi::xml_node element, const Place& place) {
    const std::size_t begin = scene_.tree.tagBegin(element);
    object.source = {static_cast<std::uint32_t>(begin),
                     static_cast<std::uint32_t>(tagEnd(source_.text(), begin)), place.use};
    source_.objects.add(object.source);
    if (asksForContext(place.style.fill))
        source_.contextFills.insert(object.source);
    if (asksForContext(place.style.stroke))
        source_.contextStrokes.insert(object.source);
}

void TreeReader::readUse(pugi::xml_node element, Inside inside) {
    const std::string_view reference = hrefOf(element);
    const std::string_view id = localId(reference);
    if (id.empty() && !reference.empty())
        scene_.notes.add(Unsupported::External);
    const pugi::xml_node target = scene_.tree.byId(id);
    if (!target)
        return;
    if (leadsBack(element, target))
        return scene_.notes.add(Unsupported::Circle);
    if (open_.size() == kDeepestUse)
        return scene_.notes.add(Unsupported::DeepLayer);
    scene_.budget.spend(1);
    open_.push_back(element);
    inside.place.style.context = contextOfUse(element, target, inside.place);
    readTarget(element, target, std::move(inside));
}

bool TreeReader::leadsBack(pugi::xml_node use, pugi::xml_node target) {
    const auto holds = [&](pugi::xml_node inside) {
        std::size_t steps = 0;
        for (; inside && inside != target; inside = inside.parent())
            ++steps;
        scene_.budget.spend(steps / kStepsUp);
        return !inside.empty();
    };
    return holds(use) || std::any_of(open_.begin(), open_.end(), holds);
}

void TreeReader::readTarget(pugi::xml_node use, pugi::xml_node target, Inside inside) {
    Place& place = inside.place;
    addUseInstance(use, target, place);
    const StatedStyle stated = scene_.cascade.of(use, place.style.custom);
    const double x = parseLength(stated[Property::X], place.lengths, Axis::Horizontal).value_or(0);
    const double y = parseLength(stated[Property::Y], place.lengths, Axis::Vertical).value_or(0);
    place.toDrawing = place.toDrawing * Affine::translation(x, y);
    const std::string_view name = scene_.tree.svgName(target);
    const bool ownViewport = name == "symbol" || name == "svg";
    work_.push_back({std::move(inside), ownViewport ? pugi::xml_node() : target, false, true});
    if (!ownViewport)
        return;
    auto own = enter(target, work_.back().inside.place);
    if (!own)
        return;
    own->place = viewportPlace(target, use, own->place);
    readChildren(target, std::move(*own));
}

void TreeReader::addUseInstance(pugi::xml_node use, pugi::xml_node target, Place& place) {
    if (apart_ != 0)
        return;
    source_.useInstances.push_back({place.use, static_cast<std::uint32_t>(scene_.tree.tagBegin(use)),
                                    static_cast<std::uint32_t>(scene_.tree.tagBegin(target))});
    place.use = static_cast<std::uint32_t>(source_.useInstances.size());
}

Place TreeReader::viewportPlace(pugi::xml_node element, pugi::xml_node use, const Place& outside) {
    const StatedStyle stated = scene_.cascade.of(element, outside.style.custom);
    const StatedStyle statedByUse = use ? scene_.cascade.of(use, outside.style.custom) : StatedStyle();
    const auto length = [&](const StatedStyle& from, Property property, Axis axis) {
        return parseLength(from[property], outside.lengths, axis);
    };
    const auto side = [&](Property property, Axis axis) {
        const auto given = length(statedByUse, property, axis);
        return given ? *given : length(stated, property, axis).value_or(outside.lengths.whole(axis));
    };
    const double x = length(stated, Property::X, Axis::Horizontal).value_or(0);
    const double y = length(stated, Property::Y, Axis::Vertical).value_or(0);
    const Box viewport{x, y, x + side(Property::Width, Axis::Horizontal),
                       y + side(Property::Height, Axis::Vertical)};

    Place inside = outside;
    if (!showsOverflow(stated))
        narrow(inside, rectangleClip(viewport, outside.toDrawing));
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
