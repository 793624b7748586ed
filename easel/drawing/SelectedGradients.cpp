// Exchanges the selected objects for changed ones.
#include "easel/drawing/SelectedGradients.h"

#include "easel/drawing/WholeChange.h"

#include <algorithm>
#include <utility>

namespace easel::drawing {

namespace {

// The undo kind of these commands, which no plug-in uses.
constexpr long kGradientUndo = 2;

// Nothing for an object that the change leaves as it is, or that takes no gradient on that part.
template <class Change> ObjectPtr changed(const Object& object, PaintStep part, const Change& change) {
    if (!takesGradient(object, part))
        return nullptr;
    Object other = object;
    change(other);
    return saysTheSame(object, other) ? nullptr : sealed(std::move(other));
}

auto onObjects(PaintStep part, const GradientCommand& command) {
    return [part, &command](Object& object) {
        const auto gradient = wholeGradientOf(object, part);
        if (!gradient)
            return;
        const WholeGradient other = command(*gradient, frameOf(object, part));
        if (!same(*gradient, other))
            putGradient(object, other, part);
    };
}

template <class Condition> bool anySelected(const Drawing& drawing, const Condition& condition) {
    const std::vector<std::size_t> selection = drawing.selection();
    return std::any_of(selection.begin(), selection.end(),
                       [&](std::size_t index) { return condition(*drawing.object(index)); });
}

} // namespace

bool canTakeGradient(const Drawing& drawing, PaintStep part) {
    return anySelected(drawing, [part](const Object& object) { return takesGradient(object, part); });
}

bool wouldChange(const Drawing& drawing, PaintStep part, const GradientCommand& command) {
    const auto change = onObjects(part, command);
    return anySelected(drawing,
                       [&](const Object& object) { return changed(object, part, change) != nullptr; });
}

bool changeSelected(Drawing& drawing, PaintStep part, const GradientCommand& command) {
    return changeSelectedObjects(drawing, part, onObjects(part, command));
}

bool changeSelectedObjects(Drawing& drawing, PaintStep part,
                           const std::function<void(Object& object)>& change) {
    std::vector<std::pair<std::size_t, ObjectPtr>> changes;
    for (const std::size_t index : drawing.selection())
        if (ObjectPtr object = changed(*drawing.object(index), part, change))
            changes.emplace_back(index, std::move(object));
    if (changes.empty())
        return false;
    changeWholly(drawing, [&] {
        drawing.prepareUndo(kGradientUndo);
        for (auto& [index, object] : changes) {
            drawing.erase(index);
            drawing.insert(index, std::move(object));
            drawing.select(index);
        }
        drawing.closeUndo();
    });
    return true;
}

} // namespace easel::drawing
