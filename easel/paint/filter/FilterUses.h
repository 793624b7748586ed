// Which steps of a filter have a part in its result, and for how long.
#pragma once

#include "easel/drawing/Filter.h"

#include <cstddef>
#include <vector>

namespace easel::paint {

struct FilterUses {
    explicit FilterUses(const drawing::Filter& filter);

    // The last step that takes in what each step makes: the number of steps for the last of them, whose
    // picture is the result, and a step's own number where nobody does.
    std::vector<std::size_t> lastUse;
    bool source = false;
    bool sourceAlpha = false;
};

// How many pictures are held at the same time while the filter runs.
std::size_t mostPictures(const drawing::Filter& filter);

} // namespace easel::paint
