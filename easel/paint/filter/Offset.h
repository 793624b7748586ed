// Moves pictures.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The picture moved by so many pixels, whole or not; what comes from outside is transparent.
Surface movedBy(const Surface& picture, drawing::Point by);

} // namespace easel::paint
