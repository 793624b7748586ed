// What lives as long as the module is loaded.
#pragma once

#include "host/Gradient.h"

#include <cstdint>

/// The gradient that a click gives to an object without one; kept from one run of the host to the next.
extern CGradientData gCurrentGradient;

/// Fixed-point constants that are made at load and that nothing reads.
extern double tolD768;
extern std::int32_t fixAng90;
extern std::int32_t fixAng360;
