// The color of a gradient at a position.
#pragma once

#include "host/Gradient.h"

/// A stop with the color that the gradient shows at `position` (a fraction, as stops have) and with that
/// position. Before the first and after the last stop the color is theirs. The list has at least one stop and
/// is sorted.
CGradientColor CalcColorGradient(CGradientData const& gradient, double position);
