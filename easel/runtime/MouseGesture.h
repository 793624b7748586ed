// What somebody does with the mouse in a dialog, from the press to the release.
#pragma once

#include "easel/paint/pixels/PixelGeometry.h"

#include <vector>

namespace easel::runtime {

// The button goes down at the press and up where the way ends; without a way it is a click. In the dialog's
// pixels.
struct MouseGesture {
    paint::PixelPoint press;
    std::vector<paint::PixelPoint> way;
};

} // namespace easel::runtime
