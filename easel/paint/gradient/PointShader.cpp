// Pixel by pixel evaluation.
#include "easel/paint/gradient/PointShader.h"

#include "easel/paint/gradient/Blend.h"

namespace easel::paint {

namespace {

// A flat gradient has the last stop's color everywhere: the parameter lies beyond every stop.
double parameterAt(const FlatMap&, drawing::Point) {
    return std::numeric_limits<double>::infinity();
}
template <class Map> double parameterAt(const Map& map, drawing::Point point) {
    return map.at(point);
}

} // namespace

void PointShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* pixels = surface_.row(y);
    for (const CoverageRun& run : runs) {
        const double share = opacity_ * run.coverage / kFullCoverage;
        for (int x = run.begin; x < run.end; ++x) {
            const drawing::RampColor color = colorAt(x, y);
            pixels[x] = blended(pixels[x], color, color.opacity * share);
        }
    }
}

drawing::RampColor PointShader::colorAt(int x, int y) const {
    const drawing::Point centre{x + 0.5, y + 0.5};
    const double parameter = std::visit([&](const auto& map) { return parameterAt(map, centre); }, map_);
    if (std::isnan(parameter))
        return {0, 0, 0, 0};
    if (std::isinf(parameter))
        return drawing::colorOf(gradient_.ramp.stops().back());
    return gradient_.ramp.at(spreadPosition(parameter, gradient_.spread));
}

} // namespace easel::paint
