// Puts opacity over the colors of a ramp.
#pragma once

#include "easel/drawing/Ramp.h"
#include "easel/drawing/Remainder.h"

#include <span>

namespace easel::drawing {

// The ramp with the colors of one and the opacity of the other, each at its own stops; a color between two
// stops is given to the nearest 16 bits. The opacity has at least one stop.
Ramp faded(const Ramp& colors, std::span<const OpacityStop> opacity);

} // namespace easel::drawing
