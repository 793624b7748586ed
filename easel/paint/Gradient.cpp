// Gradients of files made ready for painting.
#include "easel/paint/Gradient.h"

namespace easel::paint {

Gradient gradientOf(const drawing::ForeignGradient& foreign) {
    std::vector<RampStop> stops;
    stops.reserve(foreign.stops.size());
    for (const drawing::ForeignStop& stop : foreign.stops)
        stops.push_back({stop.offset, stop.color, stop.opacity});
    return {foreign.geometry, foreign.toDrawing, foreign.spread, Ramp(std::move(stops))};
}

} // namespace easel::paint
