// How objects in their order fall into groups.
#pragma once

#include "easel/drawing/Object.h"

#include <span>

namespace easel::paint {

using ObjectSpan = std::span<const drawing::ObjectPtr>;

// The group of the object's chain that lies directly in `parent` (null: the drawing); null if the object
// itself does.
const drawing::Group* childOf(const drawing::Group* parent, const drawing::Object& object);

// The objects at the front that belong to the same group in `parent`; at least one. `objects` is not empty.
ObjectSpan frontRun(const drawing::Group* parent, ObjectSpan objects);

// Calls onGroup(group, its objects) and onObject(object) for what lies directly in `parent`, back to front.
template <class OnGroup, class OnObject>
void forEachRun(const drawing::Group* parent, ObjectSpan objects, OnGroup onGroup, OnObject onObject) {
    while (!objects.empty()) {
        const drawing::Group* const group = childOf(parent, *objects.front());
        const ObjectSpan run = group ? frontRun(parent, objects) : objects.first(1);
        if (group)
            onGroup(*group, run);
        else
            onObject(*objects.front());
        objects = objects.subspan(run.size());
    }
}

} // namespace easel::paint
