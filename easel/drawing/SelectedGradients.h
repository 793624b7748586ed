// One command on the gradients of all selected objects, as one step for undo.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/drawing/GradientCommands.h"

#include <functional>

namespace easel::drawing {

// A command on a gradient that is on this frame.
using GradientCommand =
    std::function<WholeGradient(const WholeGradient& gradient, const GradientFrame& frame)>;

// Whether a gradient can be put on that part of a selected object.
bool canTakeGradient(const Drawing& drawing, PaintStep part);
// Whether the command would change the gradient on that part of a selected object.
bool wouldChange(const Drawing& drawing, PaintStep part, const GradientCommand& command);

// Changes the gradients that the selected objects have on that part. What the command leaves as it is stays
// out of the step, and without a change there is no step; whether there is one. The selection stays.
bool changeSelected(Drawing& drawing, PaintStep part, const GradientCommand& command);
// The same for changes of whole objects, to all that can take a gradient on that part.
bool changeSelectedObjects(Drawing& drawing, PaintStep part,
                           const std::function<void(Object& object)>& change);

} // namespace easel::drawing
