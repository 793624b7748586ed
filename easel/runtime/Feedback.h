// How the feedback of a drag looks.
#pragma once

#include "easel/paint/pixels/Surface.h"
#include "easel/runtime/DrawingWindow.h"

#include <vector>

namespace easel::runtime {

// Draws construction lines on top of what the surface shows: black, one image pixel wide, between two light
// edges as wide, so that they can be seen on any color.
void drawFeedback(const std::vector<ConstructionLine>& lines, const drawing::Affine& toImage,
                  const paint::SurfaceView& surface);

} // namespace easel::runtime
