#include "easel/drawing/Drawing.h"

#include "easel/memory/MemoryReserve.h"

#include <algorithm>
#include <utility>

namespace easel::drawing {

namespace {

// From this share of all objects on they are quicker found in the list than put in order.
constexpr std::size_t kShareOfMany = 8;
// Room for what marks a selected object around its box, and for the blurred edge of its pixels.
constexpr double kRepaintMargin = 8;

bool anyBlends(const std::vector<ObjectPtr>& objects) {
    const Group* last = nullptr;
    return std::any_of(objects.begin(), objects.end(), [&](const ObjectPtr& object) {
        const Group* const group = object->group.get();
        return group && std::exchange(last, group) != group && blendsWithDrawing(*group);
    });
}

// The objects of a few slots, back to front.
std::vector<ObjectPtr> inOrder(const DisplayList& list, const std::vector<Slot>& slots) {
    std::vector<std::pair<std::uint32_t, Slot>> order;
    order.reserve(slots.size());
    for (const Slot slot : slots)
        order.emplace_back(static_cast<std::uint32_t>(list.indexOf(slot)), slot);
    std::sort(order.begin(), order.end());
    std::vector<ObjectPtr> objects;
    objects.reserve(order.size());
    for (const auto& [index, slot] : order)
        objects.push_back(list.object(slot));
    return objects;
}

// The same of many, perhaps of all: no list of them is held beside their objects.
std::vector<ObjectPtr> inOrderOfList(const DisplayList& list, std::vector<Slot> slots) {
    std::vector<bool> wanted(list.slotCount());
    for (const Slot slot : slots)
        wanted[slot] = true;
    const std::size_t count = slots.size();
    slots = std::vector<Slot>();
    std::vector<ObjectPtr> objects;
    objects.reserve(count);
    list.forEach([&](Slot slot, const ObjectPtr& object) {
        if (wanted[slot])
            objects.push_back(object);
    });
    return objects;
}

} // namespace

Drawing Drawing::create(double width, double height) {
    return {width, height, {}, nullptr, {}};
}

Drawing::Drawing(double width, double height, std::vector<ObjectPtr> objects,
                 std::shared_ptr<const DocumentSource> source, std::vector<std::string> notes)
    : width_(width), height_(height), blends_(anyBlends(objects)), source_(std::move(source)),
      notes_(std::move(notes)) {
    list_.append(std::move(objects));
    places_.assign(static_cast<Slot>(list_.size()),
                   [this](Slot slot) { return list_.object(slot)->shownBounds(); });
}

std::optional<std::size_t> Drawing::indexOfId(std::string_view id) const {
    std::size_t index = 0;
    std::optional<std::size_t> found;
    list_.forEach([&](Slot, const ObjectPtr& object) {
        if (!found && object->id.text() == id)
            found = index;
        ++index;
    });
    return found;
}

std::vector<ObjectPtr> Drawing::objectsWithin(const Box& area) const {
    std::vector<Slot> slots = places_.within(area);
    const bool many = slots.size() > list_.size() / kShareOfMany;
    return many ? inOrderOfList(list_, std::move(slots)) : inOrder(list_, slots);
}

std::optional<std::size_t> Drawing::pick(Point point, double reach, KindSet kinds) const {
    std::vector<std::pair<std::size_t, Slot>> candidates;
    for (const Slot slot : places_.within(Box{point.x, point.y, point.x, point.y}.grownBy(reach)))
        if (kinds.has(list_.object(slot)->kind))
            candidates.emplace_back(list_.indexOf(slot), slot);
    std::sort(candidates.rbegin(), candidates.rend());
    for (const auto& [index, slot] : candidates)
        if (list_.object(slot)->hitBy(point, reach))
            return index;
    return std::nullopt;
}

void Drawing::insert(std::size_t index, ObjectPtr object) {
    memory::demandMemory();
    history_.makeRoom();
    const Slot slot = list_.newSlot();
    putIn(index, slot, object);
    const Edit* const last = history_.lastEdit();
    const bool putsBack = last && last->what == Edit::What::Erase && last->index == index &&
                          saysTheSame(*last->object, *object);
    history_.record({Edit::What::Insert, slot, index, std::move(object)});
    if (putsBack)
        history_.lastStepChangedNothing();
}

void Drawing::erase(std::size_t index) {
    memory::demandMemory();
    history_.makeRoom();
    const Slot slot = list_.slotAt(index);
    ObjectPtr object = takeOut(slot);
    history_.record({Edit::What::Erase, slot, index, std::move(object)});
}

void Drawing::amend(std::size_t index, const ObjectPtr& object) {
    const Slot slot = list_.slotAt(index);
    const ObjectPtr before = list_.replace(slot, object);
    places_.erase(before->shownBounds(), slot);
    places_.insert(object->shownBounds(), slot);
    changed(before);
    changed(object);
    history_.close();
    history_.record({});
}

bool Drawing::undo() {
    memory::demandMemory();
    const Step* step = history_.takeUndo(selectedSlots());
    if (step)
        revert(*step);
    return step != nullptr;
}

bool Drawing::takeBack() {
    const std::optional<Step> step = history_.takeBack();
    if (step)
        revert(*step);
    return step.has_value();
}

void Drawing::revert(const Step& step) {
    for (auto edit = step.edits.rbegin(); edit != step.edits.rend(); ++edit)
        revert(*edit);
    restoreSelection(step.selectionBefore);
}

bool Drawing::redo() {
    memory::demandMemory();
    const Step* step = history_.takeRedo();
    if (!step)
        return false;
    for (const Edit& edit : step->edits)
        apply(edit);
    restoreSelection(step->selectionAfter);
    return true;
}

void Drawing::apply(const Edit& edit) {
    if (edit.what == Edit::What::Insert)
        putIn(edit.index, edit.slot, edit.object);
    else
        takeOut(edit.slot);
}

void Drawing::revert(const Edit& edit) {
    if (edit.what == Edit::What::Erase)
        putIn(edit.index, edit.slot, edit.object);
    else
        takeOut(edit.slot);
}

void Drawing::putIn(std::size_t index, Slot slot, const ObjectPtr& object) {
    // Changes outside the undo history may have left fewer objects than a step of the history knew.
    list_.insert(std::min(index, list_.size()), slot, object);
    places_.insert(object->shownBounds(), slot);
    changed(object);
}

ObjectPtr Drawing::takeOut(Slot slot) {
    if (!list_.holds(slot))
        return nullptr;
    selection_.erase(slot);
    ObjectPtr object = list_.erase(slot);
    places_.erase(object->shownBounds(), slot);
    changed(object);
    return object;
}

void Drawing::select(std::size_t index) {
    const Slot slot = list_.slotAt(index);
    if (selection_.insert(slot).second)
        changed(list_.object(slot));
}

void Drawing::unselect(std::size_t index) {
    const Slot slot = list_.slotAt(index);
    if (selection_.erase(slot) != 0)
        changed(list_.object(slot));
}

void Drawing::unselectAll() {
    for (const Slot slot : std::exchange(selection_, {}))
        changed(list_.object(slot));
}

std::vector<std::size_t> Drawing::selection() const {
    std::vector<std::size_t> indices;
    indices.reserve(selection_.size());
    for (const Slot slot : selection_)
        indices.push_back(list_.indexOf(slot));
    std::sort(indices.begin(), indices.end());
    return indices;
}

std::vector<ObjectPtr> Drawing::someSelected(std::size_t atMost) const {
    std::vector<ObjectPtr> objects;
    for (auto slot = selection_.begin(); slot != selection_.end() && objects.size() < atMost; ++slot)
        objects.push_back(list_.object(*slot));
    return objects;
}

void Drawing::restoreSelection(const std::vector<Slot>& slots) {
    unselectAll();
    for (const Slot slot : slots)
        if (list_.holds(slot) && selection_.insert(slot).second)
            changed(list_.object(slot));
}

void Drawing::invalidateSelection() {
    for (const Slot slot : selection_)
        changed(list_.object(slot));
}

void Drawing::changed(const ObjectPtr& object) {
    if (!listener_)
        return;
    // What marks a selected object lies around the object itself, wherever a filter shows it.
    Box area = object->shownBounds();
    area.add(object->paintBounds());
    listener_(area.grownBy(kRepaintMargin));
}

} // namespace easel::drawing
