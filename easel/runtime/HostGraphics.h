// What stands behind a graphics environment of the host interface.
#pragma once

#include "easel/paint/Port.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/ItemContent.h"

#include <optional>
#include <vector>

// Either the image of a port, in the port's coordinates, or the feedback over a drawing window, which is made
// of lines.
struct HostGraphics {
    easel::paint::Port* port = nullptr;
    std::optional<easel::runtime::ShownGradient> gradient; // the last that the image was filled with
    std::vector<easel::runtime::ConstructionLine> lines;
};
