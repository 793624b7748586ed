// What a filter is read for.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/svg/read/Scene.h"

#include <functional>
#include <memory>
#include <vector>

namespace easel::svg {

// What is filtered.
struct FilteredElement {
    const Place& place;   // inside the element
    drawing::Box box;     // of the element in its own units; empty if there is none
    drawing::Box painted; // what painting it may touch, in its own units
};

// The objects that an effect shows which takes them from elsewhere, a picture fitted into the region; null
// for none. Both are in the units of the place.
using ReadFilterImage = std::function<std::shared_ptr<const std::vector<drawing::ObjectPtr>>(
    pugi::xml_node effect, const drawing::Box& region, const Place& place)>;

} // namespace easel::svg
