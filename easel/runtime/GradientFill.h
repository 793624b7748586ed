// Filling in a port with a gradient.
#pragma once

#include "easel/drawing/Path.h"
#include "host/Gradient.h"

namespace easel::paint {
class Port;
}

namespace easel::runtime {

// Fills the outline's interior within the port's clip. The outline is in the port's coordinates, and so are
// the record's start, end and radii, which are absolute. The record has at least one stop.
void fillWithGradient(paint::Port& port, const drawing::Path& outline, const CGradientData& record);

} // namespace easel::runtime
