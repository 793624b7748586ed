// A font whose letters take up room and show nothing.
#pragma once

#include <cstdint>

using cairo_font_face_t = struct _cairo_font_face;

namespace easel::exports {

// Painted with this opacity, nothing of the font shows: Cairo leaves out letters without any ink, and
// anything fainter.
inline constexpr double kUnseenOpacity = 1.0 / 250;

// The font's glyph that is so wide. In ems.
std::uint32_t unseenGlyph(double width);

// Owned by the caller.
cairo_font_face_t* newUnseenFont();

} // namespace easel::exports
