// Choosing a gradient's kind, and its direction or centre in the preview.
#pragma once

#include "host/Dialogs.h"
#include "host/Geometry.h"
#include "host/Gradient.h"

/// One of the radio buttons was hit: item 10 makes the gradient linear, any other radial. All else stays.
void HandleGradientTypeChange(DialogRef dialog, short item, CGradientData& gradient);

/// The preview was pressed: a dragged line gives a linear gradient its angle, the mouse any other its centre.
void HandlePreviewClick(DialogRef dialog, CGradientData& gradient);

/// Shows a line from `anchor` to the mouse, inside `clip`, until the button is released and returns it. All
/// in the dialog's local pixels.
TLine<double> TrackDialogLine(TPoint<double> const& anchor, TRect<short> const& clip);
