// What the mouse would do to the direction or the centre of the gradient that an item of a dialog shows.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/runtime/DialogItem.h"
#include "easel/runtime/MouseGesture.h"

#include <optional>

namespace easel::runtime {

// Degrees, counter-clockwise as seen, above -180 and up to 180. Nothing if the item shows no linear gradient.
std::optional<double> shownAngle(const DialogItem& item);
// In the dialog's pixels. Nothing if the item shows no radial gradient.
std::optional<drawing::Point> shownCentre(const DialogItem& item);

// A line dragged from the middle of the item in that direction (degrees, counter-clockwise).
MouseGesture turnTo(const DialogItem& item, double degrees);
// The next multiple of `step` degrees after the angle, or before it if the step is negative.
double nextAngle(double angle, double step);
// A drag that ends there, which may be outside of the item.
MouseGesture moveCentreTo(const DialogItem& item, paint::PixelPoint centre);

} // namespace easel::runtime
