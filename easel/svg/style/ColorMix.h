// Mixtures of two colors.
#pragma once

#include "easel/drawing/Paint.h"

#include <optional>
#include <string_view>

namespace easel::svg {

// What stands in the brackets of color-mix(): "in SPACE, COLOR PERCENT, COLOR PERCENT". The space is srgb,
// oklab, srgb-linear or a kind of xyz, which mixes as the linear one does. Nothing for other texts and
// spaces.
std::optional<drawing::ColorPaint> parseColorMix(std::string_view arguments,
                                                 const drawing::ColorPaint& currentColor);

} // namespace easel::svg
