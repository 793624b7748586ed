// Clip paths as masks of coverage.
#pragma once

#include "easel/drawing/Group.h"
#include "easel/paint/Layer.h"
#include "easel/paint/Painter.h"

namespace easel::paint {

// The pixels that the clip path may leave visible, within `limit`.
PixelRect pixelsInside(const drawing::ClipPath& clip, const drawing::Affine& toSurface,
                       const PixelRect& limit);

// Leaves of the layer what lies inside the clip path and the clip paths that narrow it in turn. `toLayer`
// maps to the layer's own pixels.
void clipLayer(Layer& layer, const drawing::ClipPath& clip, const drawing::Affine& toLayer, Painter& painter);

} // namespace easel::paint
