// Colors in every form that CSS has.
#pragma once

#include "easel/drawing/Paint.h"

#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

// Names, #rgb and its longer forms, rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() and color(), old and
// new syntax, with opacity. Colors outside sRGB are moved to its edge. Nothing if the text is no color.
// `currentColor` is the color of that keyword.
std::optional<drawing::ColorPaint> parseColor(std::string_view text,
                                              const drawing::ColorPaint& currentColor = {});

// The color as text that reads back as the same 16 bits per channel: #rrggbb where that holds it, else rgb()
// with percentages.
std::string colorText(const drawing::Rgb16& color);

} // namespace easel::svg
