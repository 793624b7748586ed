// The standard form of the tool's gradients, as any viewer shows it.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"
#include "easel/drawing/Remainder.h"
#include "host/Gradient.h"

#include <optional>

namespace easel::drawing {

// The gradient, with stops from 0 to 1, that looks like record and remainder (null: none) on this outline.
// Nothing if the fitted geometry is not finite or the record has no stops.
std::optional<Gradient> standardGradient(const CGradientData& record, const Remainder* remainder,
                                         const Path& outline);

// Whether two gradients look the same but for rounding: equal stops, and geometries that differ by little
// beside their size.
bool alike(const Gradient& a, const Gradient& b);

} // namespace easel::drawing
