// The filter functions of CSS.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/drawing/Paint.h"
#include "easel/svg/text/Length.h"

#include <optional>
#include <string_view>

namespace easel::svg {

// The effect of "name(arguments)"; nothing if it is no function with such arguments. `color` is that of
// `currentColor`.
std::optional<drawing::FilterEffect> functionEffect(std::string_view name, std::string_view arguments,
                                                    const LengthContext& lengths,
                                                    const drawing::ColorPaint& color);

// How far from what is filtered the effect of a function may show.
double reachOf(const drawing::FilterEffect& functionEffect);

} // namespace easel::svg
