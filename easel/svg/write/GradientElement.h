// The parts of a gradient element as text, for every writer of gradients.
#pragma once

#include "easel/drawing/Gradient.h"

#include <string>
#include <string_view>

namespace easel::svg {

// "linearGradient" or "radialGradient".
std::string_view gradientElementName(const drawing::GradientGeometry& geometry);

// Attributes, each with a leading blank; none for what is assumed anyway.
std::string geometryText(const drawing::GradientGeometry& geometry);
std::string spreadText(drawing::Spread spread);

// A `stop` element; `prefix` stands before its name.
std::string stopText(const drawing::RampStop& stop, std::string_view prefix = {});

} // namespace easel::svg
