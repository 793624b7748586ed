// A gradient's ramp as it is seen: from 0 to 1, with finite positions in order.
#pragma once

#include "host/Gradient.h"

#include <list>
#include <string>
#include <vector>

namespace easel::exchange {

struct ClippedRamp {
    std::list<CGradientColor> stops; ///< at least two, the first at 0, the last at 1
    std::vector<std::string> notes;
};

/// Extends the first and the last color to the ends, and cuts what lies beyond them.
ClippedRamp clippedRamp(const CGradientData& gradient);

} // namespace easel::exchange
