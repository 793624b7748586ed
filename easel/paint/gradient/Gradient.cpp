// Gradients of files and of the tool made ready for painting.
#include "easel/paint/gradient/Gradient.h"

namespace easel::paint {

Gradient gradientOf(const drawing::ForeignGradient& foreign) {
    std::vector<RampStop> stops;
    stops.reserve(foreign.stops.size());
    for (const drawing::ForeignStop& stop : foreign.stops)
        stops.push_back({stop.offset, stop.color, stop.opacity});
    return {foreign.geometry, foreign.toDrawing, foreign.spread, Ramp(std::move(stops))};
}

Gradient gradientOf(const drawing::FittedGradient& fitted) {
    std::vector<RampStop> stops;
    stops.reserve(fitted.stops.size());
    for (const drawing::FittedStop& stop : fitted.stops)
        stops.push_back({stop.position, stop.color, 1});
    Gradient gradient{{}, {}, drawing::Spread::Pad, Ramp(std::move(stops))};
    if (fitted.kind == drawing::FittedKind::Linear)
        gradient.geometry = drawing::LinearGeometry{fitted.start, fitted.end};
    else
        gradient.geometry =
            drawing::RadialGeometry{fitted.start, fitted.startRadius, fitted.end, fitted.endRadius};
    return gradient;
}

} // namespace easel::paint
