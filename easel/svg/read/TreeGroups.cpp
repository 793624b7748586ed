// What elements do to all they hold at once: opacity, clip paths, masks and blending, as groups of the
// drawing.
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/style/PlacedTransform.h"
#include "easel/svg/text/Scanner.h"

#include <utility>

namespace easel::svg {

using drawing::Affine;
using drawing::BlendMode;
using drawing::Box;
using drawing::Group;

namespace {

// Layers are painted by recursion.
constexpr std::uint32_t kDeepestGroup = 500;

BlendMode blendModeOf(const StatedStyle& stated) {
    const std::string_view text = stated[Property::MixBlendMode];
    if (text.empty())
        return BlendMode::Normal;
    return drawing::blendModeFromName(text::lowerCase(text)).value_or(BlendMode::Normal);
}

} // namespace

std::optional<TreeReader::Inside> TreeReader::enter(pugi::xml_node element, const Place& outside) {
    const StatedStyle stated = scene_.cascade.of(element, outside.style.custom);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return std::nullopt;
    noteEffects(stated);
    Place place = outside;
    place.style = outside.style.inherited(stated, place.lengths);
    place.toDrawing = outside.toDrawing * transformOf(stated, place.lengths, Box());
    Inside inside = inLayer(element, stated, std::move(place), objects_.size(), hidden_.size());
    waiting_ += inside.waiting ? 1 : 0;
    return inside;
}

TreeReader::Inside TreeReader::inLayer(pugi::xml_node element, const StatedStyle& stated, Place place,
                                       std::size_t firstObject, std::size_t firstHidden) {
    const std::size_t filters = filters_.countOf(stated);
    const bool waits = filters > 0 || asksForBox(stated);
    Group effects = waits ? Group() : effectsOf(stated, Box(), place);
    effects.opacity = parseOpacity(stated[Property::Opacity], 1);
    // Even if nothing else does, what it waits for makes a layer of it.
    effects.isolated = effects.isolated || waits;
    const Place before = waits ? place : Place();
    Inside inside{std::move(place), nullptr};
    if (auto group = addGroup(inside.place, std::move(effects)); group && waits) {
        FilteredGroups filtered = addFiltered(inside.place, group, filters);
        inside.waiting = std::make_shared<const WaitingGroup>(
            WaitingGroup{element, std::move(group), before, firstObject, firstHidden, std::move(filtered)});
    }
    return inside;
}

void TreeReader::finishGroup(const WaitingGroup& waiting) {
    const StatedStyle stated = scene_.cascade.of(waiting.element, waiting.place.style.custom);
    const Box box = boxOf(waiting);
    Group effects = effectsOf(stated, box, waiting.place);
    Group& group = *waiting.group;
    group.clip = std::move(effects.clip);
    group.mask = std::move(effects.mask);
    group.blend = effects.blend;
    group.isolated = effects.isolated;
    setFilters(waiting.filtered, stated, box, waiting.place, waiting.firstObject);
    if (--waiting_ == 0)
        hidden_.clear();
}

Box TreeReader::boxOf(const WaitingGroup& waiting) const {
    const Affine back = waiting.place.toDrawing.inverse();
    Box box;
    for (std::size_t i = waiting.firstObject; i < objects_.size(); ++i)
        box.add(objects_[i]->outline.transformed(back).bounds());
    for (std::size_t i = waiting.firstHidden; i < hidden_.size(); ++i)
        box.add(hidden_[i].transformed(back).bounds());
    return box;
}

void TreeReader::addHidden(drawing::Path outline, const Place& place) {
    scene_.budget.spend(Budget::kObject + outline.points().size());
    if (auto placed = placedPath(std::move(outline), place.toDrawing))
        hidden_.push_back(std::move(*placed));
}

bool TreeReader::asksForBox(const StatedStyle& stated) const {
    return clips_.asksForBox(stated) || masksByBox(stated);
}

Group TreeReader::effectsOf(const StatedStyle& stated, const Box& box, const Place& place) {
    Group effects;
    effects.clip = clips_.clipFor(stated, box, place);
    effects.mask = maskFor(stated, box, place);
    effects.blend = blendModeOf(stated);
    effects.isolated = equalIgnoringCase(stated[Property::Isolation], "isolate");
    return effects;
}

drawing::SharedPtr<Group> TreeReader::addGroup(Place& place, Group effects) {
    if (!isLayer(effects))
        return nullptr;
    effects.depth = place.group ? place.group->depth + 1 : 1;
    if (effects.depth > kDeepestGroup) {
        scene_.notes.add(Unsupported::DeepLayer);
        return nullptr;
    }
    effects.parent = place.group;
    auto group = drawing::makeShared<Group>(std::move(effects));
    place.group = group;
    return group;
}

void TreeReader::narrow(Place& place, std::shared_ptr<const drawing::ClipPath> clip) {
    Group effects;
    effects.clip = std::move(clip);
    addGroup(place, std::move(effects));
}

bool TreeReader::showsOverflow(const StatedStyle& stated) {
    const std::string_view overflow = stated[Property::Overflow];
    return equalIgnoringCase(overflow, "visible") || equalIgnoringCase(overflow, "auto");
}

void TreeReader::noteEffects(const StatedStyle& stated) {
    const auto note = [&](Property property, std::string_view harmless, Unsupported what) {
        if (!stated[property].empty() && !equalIgnoringCase(stated[property], harmless))
            scene_.notes.add(what);
    };
    if (!equalIgnoringCase(stated[Property::VectorEffect], "non-scaling-stroke"))
        note(Property::VectorEffect, "none", Unsupported::VectorEffect);
}

} // namespace easel::svg
