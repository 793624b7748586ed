// A click of the tool on a drawing.
#pragma once

#include "host/Geometry.h"
#include "host/Objects.h"

class DWindow;
struct EventRecord;

/// The click callback: picks the object under `where` (drawing coordinates) that can carry a gradient and
/// changes its gradient. True if there was one; otherwise it beeps.
bool GradientTool(DWindow* window, EventRecord const& event, TPoint<double> const& where);

/// Changes the gradient of object `index` of the list and puts the changed clone into the object's place.
void HandleGradientOperation(CTessObjList list, long index, DWindow* window, TPoint<double> const& where);

/// Edits the object's gradient, or the current gradient if it has none, in the editor. True if the user
/// confirmed; only then is the object changed. The current gradient is never changed.
bool EditObjectGradient(TessObject* object);
