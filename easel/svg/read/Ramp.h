// Ramps of stops: what of them lies between 0 and 1.
#pragma once

#include "easel/drawing/GradientFit.h"

#include <vector>

namespace easel::svg {

// The ramp between 0 and 1: stops outside are replaced by the colors the ramp has at its ends, positions that
// go back are raised to the one before. The ramp has at least one stop, and so has the result.
std::vector<drawing::FittedStop> trimmedRamp(const std::vector<drawing::FittedStop>& stops);

} // namespace easel::svg
