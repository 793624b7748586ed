// One command on the gradients of all selected objects, as one step for undo.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/drawing/GradientCommands.h"

#include <functional>

namespace easel::drawing {

// A command on the gradient of the object that it is given with.
using GradientCommand = std::function<WholeGradient(const WholeGradient& gradient, const Object& object)>;

// Whether a selected object can carry a gradient.
bool canTakeGradient(const Drawing& drawing);
// Whether the command would change the gradient of a selected object.
bool wouldChange(const Drawing& drawing, const GradientCommand& command);

// Changes the gradients of the selected objects that have one. What the command leaves as it is stays out of
// the step, and without a change there is no step; whether there is one. The selection stays.
bool changeSelected(Drawing& drawing, const GradientCommand& command);
// The same for changes of whole objects, to all that can carry a gradient.
bool changeSelectedObjects(Drawing& drawing, const std::function<void(Object& object)>& change);

} // namespace easel::drawing
