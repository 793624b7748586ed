// Colors with a name.
#pragma once

#include "host/Gradient.h"

inline constexpr RGBColor kBlackRGBColor{0, 0, 0};
