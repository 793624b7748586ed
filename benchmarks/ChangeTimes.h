// What changing one object of a drawing costs, up to the repainted pixels.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/paint/Surface.h"

namespace bench {

// Medians, in seconds.
struct ChangeTimes {
    double change; // an undoable change of one object and the repaint of what it covers
    double undo;   // the same for taking it back
};

// `toSurface` maps drawing units to pixels.
ChangeTimes changeTimes(easel::drawing::Drawing& drawing, easel::paint::Surface& surface,
                        const easel::drawing::Affine& toSurface);

} // namespace bench
