// How much each channel of a color counts for its luminance, as SVG's masks and luminanceToAlpha have it.
#pragma once

namespace easel::drawing {

inline constexpr double kRedLuminance = 0.2125;
inline constexpr double kGreenLuminance = 0.7154;
inline constexpr double kBlueLuminance = 0.0721;

constexpr double luminanceOf(double red, double green, double blue) {
    return kRedLuminance * red + kGreenLuminance * green + kBlueLuminance * blue;
}

} // namespace easel::drawing
