// How the feedback of a drag looks.
#pragma once

#include "easel/paint/pixels/Surface.h"
#include "easel/runtime/DrawingWindow.h"

#include <vector>

namespace easel::runtime {

// Draws construction lines, black and one image pixel wide, on top of what the surface shows.
void drawFeedback(const std::vector<ConstructionLine>& lines, const drawing::Affine& toImage,
                  const paint::SurfaceView& surface);

} // namespace easel::runtime
