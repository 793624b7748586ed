// Working on color stops with the mouse: selecting, adding, dragging, pulling off.
#pragma once

#include "Gradient/editor/EditorState.h"
#include "host/Dialogs.h"
#include "host/Geometry.h"

/// The ramp was pressed: selects the stop near the mouse or adds one there, then lets it be dragged.
void HandleGradClick(DialogRef dialog, CGradientData& gradient, ActiveStop& active);

/// Moves the active stop with the mouse until the button is released. Below the ramp the stop is removed, and
/// it comes back when the mouse does. `click` is where the button was pressed, `ramp` where positions 0 and 1
/// lie.
void TrackColorPtDrag(DialogRef dialog, TPoint<short> const& click, TRect<short> const& ramp,
                      CGradientData& gradient, ActiveStop& active);
