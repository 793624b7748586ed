// Exchanges the selected objects for changed ones.
#include "easel/drawing/SelectedGradients.h"

#include <algorithm>
#include <utility>

namespace easel::drawing {

namespace {

// The undo kind of these commands, which no plug-in uses.
constexpr long kGradientUndo = 2;

bool looksTheSame(const Object& a, const Object& b) {
    if (saysTheSame(a, b))
        return true;
    const auto one = wholeGradientOf(a);
    const auto other = wholeGradientOf(b);
    return one && other && same(*one, *other);
}

// Nothing for an object that the change leaves as it is, or that cannot carry a gradient.
template <class Change> ObjectPtr changed(const Object& object, const Change& change) {
    if (!carriesGradient(object.kind))
        return nullptr;
    Object other = object;
    change(other);
    return looksTheSame(object, other) ? nullptr : sealed(std::move(other));
}

auto onObjects(const GradientCommand& command) {
    return [&command](Object& object) {
        if (const auto gradient = wholeGradientOf(object))
            putGradient(object, command(*gradient, object));
    };
}

template <class Condition> bool anySelected(const Drawing& drawing, const Condition& condition) {
    const std::vector<std::size_t> selection = drawing.selection();
    return std::any_of(selection.begin(), selection.end(),
                       [&](std::size_t index) { return condition(*drawing.object(index)); });
}

} // namespace

bool canTakeGradient(const Drawing& drawing) {
    return anySelected(drawing, [](const Object& object) { return carriesGradient(object.kind); });
}

bool wouldChange(const Drawing& drawing, const GradientCommand& command) {
    return anySelected(drawing,
                       [&](const Object& object) { return changed(object, onObjects(command)) != nullptr; });
}

bool changeSelected(Drawing& drawing, const GradientCommand& command) {
    return changeSelectedObjects(drawing, onObjects(command));
}

bool changeSelectedObjects(Drawing& drawing, const std::function<void(Object& object)>& change) {
    std::vector<std::pair<std::size_t, ObjectPtr>> changes;
    for (const std::size_t index : drawing.selection())
        if (ObjectPtr object = changed(*drawing.object(index), change))
            changes.emplace_back(index, std::move(object));
    if (changes.empty())
        return false;
    drawing.prepareUndo(kGradientUndo);
    for (auto& [index, object] : changes) {
        drawing.erase(index);
        drawing.insert(index, std::move(object));
        drawing.select(index);
    }
    drawing.closeUndo();
    return true;
}

} // namespace easel::drawing
