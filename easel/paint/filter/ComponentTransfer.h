// Changes each channel by a function.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

Surface changedBy(const drawing::TransferEffect& effect, const Surface& picture);

// The function at a value from 0 to 1, clamped to that range.
double transferred(const drawing::TransferFunction& function, double value);

} // namespace easel::paint
