// The color of a gradient at a position.
#include "Gradient/model/ColorInterpolation.h"

#include <cmath>
#include <cstdint>

namespace {

std::uint16_t MixChannel(std::uint16_t lower, std::uint16_t upper, double factor) {
    double const difference = int{upper} - int{lower};
    double const value = lower + difference * factor;
    // Positions that are not numbers, or stops out of order, can lead beyond what an integer holds.
    if (!(std::abs(value) < 2147483648.0)) {
        return 0;
    }
    // Truncated, not rounded: halfway between 0 and 65535 is 32767.
    return static_cast<std::uint16_t>(static_cast<std::int32_t>(value));
}

} // namespace

CGradientColor CalcColorGradient(CGradientData const& gradient, double position) {
    auto const& colors = gradient.ColorList();
    CGradientColor const* lower = &colors.front();
    CGradientColor const* upper = &colors.back();
    for (CGradientColor const& stop : colors) {
        if (position >= stop.Percent()) {
            lower = &stop;
        }
        if (stop.Percent() >= position && upper->Percent() > stop.Percent()) {
            upper = &stop;
        }
    }
    double factor = 0.0;
    if (upper->Percent() != lower->Percent()) {
        factor = (position - lower->Percent()) / (upper->Percent() - lower->Percent());
    }
    RGBColor const from = lower->ColorRGB();
    RGBColor const to = upper->ColorRGB();
    RGBColor const mixed{MixChannel(from.red, to.red, factor), MixChannel(from.green, to.green, factor),
                         MixChannel(from.blue, to.blue, factor)};
    return {mixed, position};
}
