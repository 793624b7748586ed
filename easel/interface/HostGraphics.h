// What stands behind a graphics environment of the host interface.
#pragma once

#include "easel/interface/DrawingWindow.h"
#include "easel/paint/Port.h"

#include <vector>

// Either the image of a port, in the port's coordinates, or the feedback over a drawing window, which is made
// of lines.
struct HostGraphics {
    easel::paint::Port* port = nullptr;
    std::vector<easel::host::ConstructionLine> lines;
};
