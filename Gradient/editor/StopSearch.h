// Which color stop a place on the ramp means.
#pragma once

#include "Gradient/editor/EditorState.h"

/// The stop nearest to `position` (a fraction), the earlier one of two that are equally near, if it lies
/// within 10 pixels on a ramp that is `rampWidth` pixels wide; the end of the list otherwise. The list is not
/// empty.
ActiveStop FindStopNear(std::list<CGradientColor>& colors, double position, short rampWidth);
