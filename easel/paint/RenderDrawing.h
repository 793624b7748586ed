// Paints drawings, whole or in part.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/paint/pixels/Parallel.h"
#include "easel/paint/pixels/Surface.h"

#include <span>

namespace easel::paint {

// A thread paints a band of this many rows at a time. Bands begin at whole multiples of it, whatever is
// painted and however many threads there are: where shapes are cut can show in the last bit of a pixel.
constexpr int kThreadBandRows = 256;

class BackgroundLayers;
class FilterPictures;

// Paints the drawing over what the surface holds, within the surface's clip: for a partial repaint, clip to
// the area that changed. `toSurface` maps drawing units to surface pixels. The pixels are the same for any
// number of threads. Throws std::bad_alloc when there is no memory for a layer. What filters show is kept in
// `kept` from one call to the next, unless that is null. What takes long is left to `background`, unless that
// is null.
void renderDrawing(const drawing::Drawing& drawing, const SurfaceView& surface,
                   const drawing::Affine& toSurface, unsigned threads = usefulThreads(),
                   FilterPictures* kept = nullptr, BackgroundLayers* background = nullptr);

// The same for objects that are in no drawing, back to front.
void renderObjects(std::span<const drawing::ObjectPtr> objects, const SurfaceView& surface,
                   const drawing::Affine& toSurface, unsigned threads = 1);

} // namespace easel::paint
