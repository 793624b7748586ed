// How the colors of a layer meet those below it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace easel::drawing {

// The modes of the compositing standard. The last four mix hue, saturation and luminosity of both colors; the
// others compute each channel by itself.
enum class BlendMode : std::uint8_t {
    Normal,
    Multiply,
    Screen,
    Overlay,
    Darken,
    Lighten,
    ColorDodge,
    ColorBurn,
    HardLight,
    SoftLight,
    Difference,
    Exclusion,
    Hue,
    Saturation,
    Color,
    Luminosity
};
inline constexpr std::size_t kBlendModeCount = 16;

// As CSS names them: "normal", "color-dodge".
std::string_view blendModeName(BlendMode mode);
// Nothing for a name that is none.
std::optional<BlendMode> blendModeFromName(std::string_view name);

} // namespace easel::drawing
