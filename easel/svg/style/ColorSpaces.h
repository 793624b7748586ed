// From the color spaces of CSS to sRGB.
#pragma once

#include <array>
#include <string_view>

namespace easel::svg {

using Triple = std::array<double, 3>;

// All give sRGB with its transfer curve; 0 to 1 is inside sRGB, and values may lie outside.
Triple hslToRgb(double hueDegrees, double saturation, double lightness); // 0 to 1 but for the hue
Triple hwbToRgb(double hueDegrees, double whiteness, double blackness);
Triple labToRgb(const Triple& lab);     // CIE Lab under D50; L 0 to 100
Triple oklabToRgb(const Triple& oklab); // L 0 to 1
// From lightness, chroma and hue in degrees to lightness and the two axes.
Triple polarToAxes(const Triple& lch);

// The other way, from sRGB.
Triple rgbToLinear(const Triple& rgb);
Triple rgbToOklab(const Triple& rgb);

// The spaces of color(): srgb, srgb-linear, display-p3, a98-rgb, prophoto-rgb, rec2020, xyz, xyz-d50,
// xyz-d65.
bool isColorSpace(std::string_view name);
Triple spaceToRgb(std::string_view name, const Triple& values);

} // namespace easel::svg
