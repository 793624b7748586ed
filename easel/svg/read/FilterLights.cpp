// Lighting effects with their lights: SVG 1.1, 15.8, 15.14 and 15.22.
#include "easel/svg/read/FilterEffects.h"

#include <algorithm>

namespace easel::svg {

using namespace drawing;

namespace {

LightPlace lightPlace(const FilterAttributes& a, const char* x, const char* y, const char* z) {
    const Point p = a.place({a.number(x, 0), a.number(y, 0)});
    return {p.x, p.y, a.anyWay(a.number(z, 0))};
}

// Nothing for an element without a light.
std::optional<std::variant<DistantLight, PointLight, SpotLight>> lightOf(const FilterAttributes& a) {
    if (const auto distant = a.child("feDistantLight"))
        return DistantLight{distant->number("azimuth", 0), distant->number("elevation", 0)};
    if (const auto point = a.child("fePointLight"))
        return PointLight{lightPlace(*point, "x", "y", "z")};
    if (const auto spot = a.child("feSpotLight"))
        return SpotLight{
            lightPlace(*spot, "x", "y", "z"), lightPlace(*spot, "pointsAtX", "pointsAtY", "pointsAtZ"),
            std::max(spot->number("specularExponent", 1), 0.0), spot->number("limitingConeAngle", 180)};
    return std::nullopt;
}

} // namespace

std::optional<FilterEffect> lightingEffect(std::string_view name, const FilterAttributes& a) {
    const bool diffuse = name == "feDiffuseLighting";
    if (!diffuse && name != "feSpecularLighting")
        return std::nullopt;
    const auto light = lightOf(a);
    if (!light)
        return FloodEffect{{}, 0};
    LightingEffect effect;
    effect.kind = diffuse ? LightingEffect::Kind::Diffuse : LightingEffect::Kind::Specular;
    effect.surfaceScale = a.number("surfaceScale", 1);
    effect.constant = std::max(a.number(diffuse ? "diffuseConstant" : "specularConstant", 1), 0.0);
    effect.exponent = std::clamp(a.number("specularExponent", 1), 0.0, 1000.0);
    effect.color = a.color(Property::LightingColor, {{65535, 65535, 65535}, 1}).color;
    effect.light = *light;
    const Point unit = a.eachWay(a.pair("kernelUnitLength").value_or(Point{}));
    effect.unit = {std::max(unit.x, 0.0), std::max(unit.y, 0.0)};
    return effect;
}

} // namespace easel::svg
