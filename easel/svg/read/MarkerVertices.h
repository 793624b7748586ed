// Where markers stand on an outline.
#pragma once

#include "easel/svg/read/Shapes.h"

#include <cstddef>
#include <vector>

namespace easel::svg {

struct MarkerVertex {
    drawing::Point at;  // in the shape's own units
    double degrees = 0; // of the outline there, halfway between how it comes and how it goes
    enum class Slot : std::size_t { Start, Mid, End } slot = Slot::Mid;
};

// In the order of the outline. An outline of a single point has a start and an end there.
std::vector<MarkerVertex> markerVertices(const Shape& shape);

} // namespace easel::svg
