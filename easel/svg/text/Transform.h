// The transform language of SVG.
#pragma once

#include "easel/drawing/Geometry.h"

#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

// matrix, translate, scale, rotate, skewX, skewY, in SVG's syntax and (with units) that of CSS. Nothing if
// the text is no list of transforms; an empty text is the identity.
std::optional<drawing::Affine> parseTransform(std::string_view text);

// "matrix(a b c d e f)", which reads back as the same map.
std::string transformText(const drawing::Affine& map);

// An angle with or without unit, in degrees. Nothing if the text is none.
std::optional<double> parseDegrees(std::string_view text);

} // namespace easel::svg
