// A repeating ramp laid out once over the parameters that occur.
#pragma once

#include "easel/drawing/Gradient.h"

#include <cstddef>
#include <optional>

namespace easel::drawing {

// The ramp that shows, with pad spread, what the given one shows with its spread from parameter `lowest` to
// `highest`. Nothing if it took more than `mostStops` stops.
std::optional<Ramp> unrolled(const Ramp& ramp, Spread spread, double lowest, double highest,
                             std::size_t mostStops);

} // namespace easel::drawing
