// The edges of what an effect takes in, and what stands for pixels beyond them.
#pragma once

#include "easel/drawing/Filter.h"

#include <algorithm>

namespace easel::paint {

// Along rows or columns.
struct Edges {
    int begin = 0;
    int end = 0; // past the last pixel
    drawing::EdgeMode mode = drawing::EdgeMode::None;

    // Whether there is something beyond them.
    bool goOn() const { return mode != drawing::EdgeMode::None && begin < end; }

    // The pixel that stands for the one at this place; -1 for none.
    int placeFor(int place) const {
        if (place >= begin && place < end)
            return place;
        if (!goOn())
            return -1;
        if (mode == drawing::EdgeMode::Duplicate)
            return std::clamp(place, begin, end - 1);
        const int size = end - begin;
        return begin + ((place - begin) % size + size) % size;
    }
};

} // namespace easel::paint
