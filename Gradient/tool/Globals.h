// What lives as long as the module is loaded.
#pragma once

#include "host/Gradient.h"

#include <cstdint>

/// The gradient that a click gives to an object without one; kept from one run of the host to the next.
extern CGradientData gCurrentGradient;

/// Fixed-point constants that the host converts before anything else is made. Nothing reads them; they are
/// kept on purpose, as part of what loading the module does.
extern double tolD768;
extern std::int32_t fixAng90;
extern std::int32_t fixAng360;
