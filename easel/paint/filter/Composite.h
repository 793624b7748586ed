// Puts two pictures of one size together.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

Surface composite(const drawing::CompositeEffect& effect, const Surface& above, const Surface& below);

// Lays a picture over what `below` holds.
void layOver(Surface& below, const Surface& above);

} // namespace easel::paint
