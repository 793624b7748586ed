// Lengths with units and percentages.
#pragma once

#include "easel/drawing/Geometry.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace easel::svg {

// What a percentage of a length refers to.
enum class Axis : std::uint8_t { Horizontal, Vertical, Other };

// What lengths are measured against, in the user units of the place where they stand.
struct LengthContext {
    double viewportWidth = 0;
    double viewportHeight = 0;
    double fontSize = 16;
    double rootFontSize = 16;

    double whole(Axis axis) const;
};

// A number with or without unit, in user units (pixels). Nothing if the text is no length.
std::optional<double> parseLength(std::string_view text, const LengthContext& context, Axis axis);

// A number or a percentage, as a fraction.
std::optional<double> parseFraction(std::string_view text);

} // namespace easel::svg
