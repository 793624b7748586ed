// A pattern: a cell of objects that repeats both ways without end.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/SharedPtr.h"

#include <memory>
#include <vector>

namespace easel::drawing {

struct Object;

struct Pattern {
    // In the pattern's own units, back to front; never null. Their groups are theirs alone.
    std::shared_ptr<const std::vector<SharedPtr<const Object>>> objects;
    Box cell;                   // in these units, with width and height above 0
    Affine toDrawing;           // from these units
    bool showsOverflow = false; // whether what reaches beyond the cell shows in its neighbors
};

} // namespace easel::drawing
