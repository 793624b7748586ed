// Snapping a point to the grid and to objects.
#pragma once

#include "easel/drawing/Geometry.h"

namespace easel::runtime {

class DrawingWindow;

enum class Switch { Off, On };

struct SnapSwitches {
    Switch grid = Switch::Off;
    Switch object = Switch::Off;
};

// The point, in drawing coordinates, or what it snaps to: with object snap the nearest end of a side or curve
// within a few screen pixels, else with grid snap the nearest grid point.
drawing::Point snapped(const DrawingWindow& window, drawing::Point point, const SnapSwitches& switches);

} // namespace easel::runtime
