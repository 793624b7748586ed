// Gradients that repeat so often that a page could not hold them, nor an eye tell the repeats apart.
#pragma once

#include "easel/drawing/Gradient.h"

#include <optional>

namespace easel::exports {

// The mean color of a gradient that repeats more than 20,000 times along what is shown of the drawing, a box
// in its coordinates; nothing for others. The gradient has an extent, and its map an inverse.
std::optional<drawing::RampStop> meanOfRepeats(const drawing::Gradient& gradient, const drawing::Box& shown);

} // namespace easel::exports
