// How objects are painted, as attributes. Each begins with a blank; there is none for what is assumed anyway,
// unless said otherwise.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/drawing/Style.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace easel::svg {

enum class Defaults : std::uint8_t { LeftOut, Stated };

// `name` is "fill-rule" or "clip-rule".
std::string ruleText(std::string_view name, drawing::FillRule rule);
std::string paintOrderText(drawing::PaintStep first);

// The pen's joins, caps and dashes. Its width, its paint and their opacity are not among them.
std::string penText(const drawing::Stroke& stroke, Defaults defaults);

} // namespace easel::svg
