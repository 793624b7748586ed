#include "easel/svg/style/ColorSpaces.h"

#include "easel/drawing/SrgbCurve.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace easel::svg {

namespace {

using Matrix = std::array<Triple, 3>;

Triple operator*(const Matrix& m, const Triple& v) {
    Triple result{};
    for (std::size_t row = 0; row < 3; ++row)
        result[row] = m[row][0] * v[0] + m[row][1] * v[1] + m[row][2] * v[2];
    return result;
}

Triple mapEach(const Triple& v, double (*curve)(double)) {
    return {curve(v[0]), curve(v[1]), curve(v[2])};
}

// The curves of the other spaces; negative values mirror the positive ones.
double a98Decode(double encoded) {
    return std::copysign(std::pow(std::abs(encoded), 563.0 / 256), encoded);
}
double prophotoDecode(double encoded) {
    const double a = std::abs(encoded);
    return std::copysign(a < 16.0 / 512 ? a / 16 : std::pow(a, 1.8), encoded);
}
double rec2020Decode(double encoded) {
    constexpr double kAlpha = 1.09929682680944;
    constexpr double kBeta = 0.018053968510807;
    const double a = std::abs(encoded);
    return std::copysign(a < 4.5 * kBeta ? a / 4.5 : std::pow((a + kAlpha - 1) / kAlpha, 1 / 0.45), encoded);
}

// Matrices from the primaries and white points of each space.
constexpr Matrix kXyzToLinearSrgb{{{3.2409699419045226, -1.537383177570094, -0.4986107602930034},
                                   {-0.9692436362808796, 1.8759675015077202, 0.04155505740717559},
                                   {0.05563007969699366, -0.20397695888897652, 1.0569715142428786}}};
constexpr Matrix kP3ToXyz{{{0.4865709486482162, 0.26566769316909306, 0.1982172852343625},
                           {0.2289745640697488, 0.6917385218365064, 0.079286914093745},
                           {0.0, 0.04511338185890264, 1.043944368900976}}};
constexpr Matrix kA98ToXyz{{{0.5766690429101305, 0.1855582379065463, 0.1882286462349947},
                            {0.29734497525053605, 0.6273635662554661, 0.07529145849399788},
                            {0.02703136138641234, 0.07068885253582723, 0.9913375368376388}}};
constexpr Matrix kRec2020ToXyz{{{0.6369580483012914, 0.14461690358620832, 0.1688809751641721},
                                {0.2627002120112671, 0.6779980715188708, 0.05930171646986196},
                                {0.0, 0.028072693049087428, 1.060985057710791}}};
constexpr Matrix kProphotoToXyz50{{{0.7977604896723027, 0.13518583717574031, 0.0313493495815248},
                                   {0.2880711282292934, 0.7118432178101014, 0.00008565396060525902},
                                   {0.0, 0.0, 0.8251046025104601}}};
// Bradford's adaptation from the white of D50 to that of D65.
constexpr Matrix kXyz50To65{{{0.9554734527042182, -0.023098536874261423, 0.0632593086610217},
                             {-0.028369706963208136, 1.0099954580058226, 0.021041398966943008},
                             {0.012314001688319899, -0.020507696433477912, 1.3303659366080753}}};

Triple xyzToRgb(const Triple& xyz) {
    return mapEach(kXyzToLinearSrgb * xyz, drawing::srgbOf);
}

} // namespace

Triple hslToRgb(double hueDegrees, double saturation, double lightness) {
    double hue = std::fmod(hueDegrees, 360.0);
    if (hue < 0)
        hue += 360;
    const double swing = saturation * std::min(lightness, 1 - lightness);
    const auto channel = [&](double offset) {
        const double k = std::fmod(offset + hue / 30, 12.0);
        return lightness - swing * std::max(-1.0, std::min({k - 3, 9 - k, 1.0}));
    };
    return {channel(0), channel(8), channel(4)};
}

Triple hwbToRgb(double hueDegrees, double whiteness, double blackness) {
    if (whiteness + blackness >= 1) {
        const double gray = whiteness / (whiteness + blackness);
        return {gray, gray, gray};
    }
    Triple rgb = hslToRgb(hueDegrees, 1, 0.5);
    for (double& channel : rgb)
        channel = channel * (1 - whiteness - blackness) + whiteness;
    return rgb;
}

Triple labToRgb(const Triple& lab) {
    constexpr double kKappa = 24389.0 / 27;
    constexpr double kEpsilon = 216.0 / 24389;
    constexpr Triple kWhite50{0.3457 / 0.3585, 1.0, (1.0 - 0.3457 - 0.3585) / 0.3585};
    const double y = (lab[0] + 16) / 116;
    const double x = lab[1] / 500 + y;
    const double z = y - lab[2] / 200;
    const auto cube = [](double f) { return f * f * f > kEpsilon ? f * f * f : (116 * f - 16) / kKappa; };
    const double luminance = lab[0] > kKappa * kEpsilon ? y * y * y : lab[0] / kKappa;
    return xyzToRgb(kXyz50To65 * Triple{cube(x) * kWhite50[0], luminance, cube(z) * kWhite50[2]});
}

Triple oklabToRgb(const Triple& oklab) {
    constexpr Matrix kToCones{{{1, 0.3963377773761749, 0.2158037573099136},
                               {1, -0.1055613458156586, -0.0638541728258133},
                               {1, -0.0894841775298119, -1.2914855480194092}}};
    constexpr Matrix kConesToLinear{{{4.0767416360759583, -3.3077115392580629, 0.2309699031821043},
                                     {-1.2684379732850315, 2.6097573492876882, -0.341319376002657},
                                     {-0.0041960761386756, -0.7034186179359362, 1.7076146940746117}}};
    const Triple cones = mapEach(kToCones * oklab, [](double v) { return v * v * v; });
    return mapEach(kConesToLinear * cones, drawing::srgbOf);
}

Triple rgbToLinear(const Triple& rgb) {
    return mapEach(rgb, drawing::linearLightOf);
}

Triple rgbToOklab(const Triple& rgb) {
    constexpr Matrix kLinearToCones{{{0.4122214708, 0.5363325363, 0.0514459929},
                                     {0.2119034982, 0.6806995451, 0.1073969566},
                                     {0.0883024619, 0.2817188376, 0.6299787005}}};
    constexpr Matrix kFromCones{{{0.2104542553, 0.7936177850, -0.0040720468},
                                 {1.9779984951, -2.4285922050, 0.4505937099},
                                 {0.0259040371, 0.7827717662, -0.8086757660}}};
    const Triple cones = kLinearToCones * rgbToLinear(rgb);
    return kFromCones * mapEach(cones, [](double v) { return std::cbrt(v); });
}

Triple polarToAxes(const Triple& lch) {
    const double angle = lch[2] * std::numbers::pi / 180;
    return {lch[0], lch[1] * std::cos(angle), lch[1] * std::sin(angle)};
}

bool isColorSpace(std::string_view name) {
    static constexpr std::array<std::string_view, 9> kNames = {"srgb",    "srgb-linear",  "display-p3",
                                                               "a98-rgb", "prophoto-rgb", "rec2020",
                                                               "xyz",     "xyz-d50",      "xyz-d65"};
    return std::any_of(kNames.begin(), kNames.end(),
                       [&](std::string_view n) { return equalIgnoringCase(n, name); });
}

Triple spaceToRgb(std::string_view name, const Triple& values) {
    const auto is = [&](std::string_view other) { return equalIgnoringCase(name, other); };
    if (is("srgb"))
        return values;
    if (is("srgb-linear"))
        return mapEach(values, drawing::srgbOf);
    if (is("display-p3"))
        return xyzToRgb(kP3ToXyz * mapEach(values, drawing::linearLightOf));
    if (is("a98-rgb"))
        return xyzToRgb(kA98ToXyz * mapEach(values, a98Decode));
    if (is("rec2020"))
        return xyzToRgb(kRec2020ToXyz * mapEach(values, rec2020Decode));
    if (is("prophoto-rgb"))
        return xyzToRgb(kXyz50To65 * (kProphotoToXyz50 * mapEach(values, prophotoDecode)));
    if (is("xyz-d50"))
        return xyzToRgb(kXyz50To65 * values);
    return xyzToRgb(values);
}

} // namespace easel::svg
