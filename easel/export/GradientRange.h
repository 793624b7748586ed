// Gradients brought into the range that other formats allow: stops from 0 to 1.
#pragma once

#include "easel/drawing/Gradient.h"

#include <optional>

namespace easel::exports {

// A gradient of pad spread that looks the same and whose stops lie between 0 and 1; others already do and are
// given back as they are.
drawing::Gradient withinUnitRange(const drawing::Gradient& gradient);

// The one color that the gradient shows everywhere, if its geometry has no extent, cannot be computed with,
// or cannot be mapped; nothing for a proper gradient.
std::optional<drawing::RampStop> onlyColor(const drawing::Gradient& gradient);

} // namespace easel::exports
