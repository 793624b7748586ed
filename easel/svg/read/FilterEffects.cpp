// What the steps of a filter do: SVG 1.1, 15.9 to 15.25, and Filter Effects 1 where it says more.
#include "easel/svg/read/FilterEffects.h"

#include "easel/drawing/Luminance.h"
#include "easel/svg/style/ComputedStyle.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace easel::svg {

using namespace drawing;

namespace {

// Kernels with more cells than this would take too long.
constexpr std::size_t kMostCells = 256;

// The value that goes with a word of the list, or the first one.
template <class Value, std::size_t count>
Value named(std::string_view word, const std::array<std::pair<std::string_view, Value>, count>& values) {
    for (const auto& [name, value] : values)
        if (word == name)
            return value;
    return values.front().second;
}

Point notNegative(std::optional<Point> lengths) {
    return lengths && lengths->x >= 0 && lengths->y >= 0 ? *lengths : Point{};
}

EdgeMode edgeMode(const FilterAttributes& a, EdgeMode otherwise) {
    const std::array<std::pair<std::string_view, EdgeMode>, 4> modes = {{{{}, otherwise},
                                                                         {"duplicate", EdgeMode::Duplicate},
                                                                         {"wrap", EdgeMode::Wrap},
                                                                         {"none", EdgeMode::None}}};
    return named(a.text("edgeMode"), modes);
}

BlurEffect blurEffect(const FilterAttributes& a) {
    return {a.eachWay(notNegative(a.pair("stdDeviation"))), edgeMode(a, EdgeMode::None)};
}

OffsetEffect offsetEffect(const FilterAttributes& a) {
    return {a.eachWay({a.number("dx", 0), a.number("dy", 0)})};
}

FloodEffect floodEffect(const FilterAttributes& a) {
    const ColorPaint color = a.color(Property::FloodColor, {});
    return {color.color, color.opacity * parseOpacity(a.stated(Property::FloodOpacity), 1)};
}

DropShadowEffect dropShadowEffect(const FilterAttributes& a) {
    return {a.eachWay(notNegative(a.pair("stdDeviation").value_or(Point{2, 2}))),
            a.eachWay({a.number("dx", 2), a.number("dy", 2)}), floodEffect(a)};
}

CompositeEffect compositeEffect(const FilterAttributes& a) {
    using Operator = CompositeEffect::Operator;
    static constexpr std::array<std::pair<std::string_view, Operator>, 7> kOperators = {
        {{"over", Operator::Over},
         {"in", Operator::In},
         {"out", Operator::Out},
         {"atop", Operator::Atop},
         {"xor", Operator::Xor},
         {"lighter", Operator::Lighter},
         {"arithmetic", Operator::Arithmetic}}};
    return {named(a.text("operator"), kOperators),
            {a.number("k1", 0), a.number("k2", 0), a.number("k3", 0), a.number("k4", 0)}};
}

ColorMatrixEffect colorMatrixEffect(const FilterAttributes& a) {
    const std::string_view type = a.text("type");
    const std::vector<double> values = a.numbers("values");
    if (type == "saturate")
        return saturation(values.empty() ? 1 : values.front());
    if (type == "hueRotate")
        return hueRotation(values.empty() ? 0 : values.front());
    ColorMatrixEffect effect = identityMatrix();
    if (type == "luminanceToAlpha") {
        effect.matrix = {};
        std::copy_n(std::array{kRedLuminance, kGreenLuminance, kBlueLuminance}.begin(), 3,
                    effect.matrix.end() - 5);
    } else if (values.size() == effect.matrix.size())
        std::copy(values.begin(), values.end(), effect.matrix.begin());
    return effect;
}

TransferFunction transferFunction(const FilterAttributes& a) {
    using Kind = TransferFunction::Kind;
    static constexpr std::array<std::pair<std::string_view, Kind>, 5> kKinds = {{{"identity", Kind::Identity},
                                                                                 {"table", Kind::Table},
                                                                                 {"discrete", Kind::Discrete},
                                                                                 {"linear", Kind::Linear},
                                                                                 {"gamma", Kind::Gamma}}};
    const Kind kind = named(a.text("type"), kKinds);
    return {kind,
            a.numbers("tableValues"),
            a.number("slope", 1),
            a.number("amplitude", 1),
            a.number("exponent", 1),
            a.number(kind == Kind::Linear ? "intercept" : "offset", 0)};
}

std::optional<FilterEffect> transferEffect(const FilterAttributes& a) {
    static constexpr std::array<std::string_view, 4> kChannels = {"feFuncR", "feFuncG", "feFuncB", "feFuncA"};
    TransferEffect effect;
    for (std::size_t i = 0; i < kChannels.size(); ++i)
        if (const auto child = a.child(kChannels[i]))
            effect.functions[i] = transferFunction(*child);
    return effect;
}

MorphologyEffect morphologyEffect(const FilterAttributes& a) {
    const bool dilates = a.text("operator") == "dilate";
    return {dilates ? MorphologyEffect::Operator::Dilate : MorphologyEffect::Operator::Erode,
            a.eachWay(notNegative(a.pair("radius")))};
}

DisplacementEffect displacementEffect(const FilterAttributes& a) {
    using Channel = DisplacementEffect::Channel;
    static constexpr std::array<std::pair<std::string_view, Channel>, 4> kChannels = {
        {{"A", Channel::Alpha}, {"R", Channel::Red}, {"G", Channel::Green}, {"B", Channel::Blue}}};
    return {a.anyWay(a.number("scale", 0)), named(a.text("xChannelSelector"), kChannels),
            named(a.text("yChannelSelector"), kChannels)};
}

std::optional<FilterEffect> turbulenceEffect(const FilterAttributes& a) {
    const Point frequency = a.pair("baseFrequency").value_or(Point{});
    if (frequency.x < 0 || frequency.y < 0)
        return FloodEffect{{}, 0};
    const bool noise = a.text("type") == "fractalNoise";
    return TurbulenceEffect{noise ? TurbulenceEffect::Kind::Noise : TurbulenceEffect::Kind::Turbulence,
                            frequency, static_cast<int>(std::clamp(a.number("numOctaves", 1), 0.0, 1000.0)),
                            a.number("seed", 0), a.text("stitchTiles") == "stitch"};
}

bool isOrder(double value) {
    return value >= 1 && value == std::floor(value) && value <= kMostCells;
}

std::optional<FilterEffect> convolveEffect(const FilterAttributes& a) {
    ConvolveEffect effect;
    const Point order = a.pair("order").value_or(Point{3, 3});
    if (!isOrder(order.x) || !isOrder(order.y) || order.x * order.y > kMostCells)
        return identityMatrix();
    effect.columns = static_cast<int>(order.x);
    effect.rows = static_cast<int>(order.y);
    effect.kernel = a.numbers("kernelMatrix");
    const double targetX = a.number("targetX", std::floor(order.x / 2));
    const double targetY = a.number("targetY", std::floor(order.y / 2));
    if (static_cast<double>(effect.kernel.size()) != order.x * order.y || targetX < 0 ||
        targetX >= effect.columns || targetY < 0 || targetY >= effect.rows)
        return identityMatrix();
    effect.targetX = static_cast<int>(targetX);
    effect.targetY = static_cast<int>(targetY);
    double sum = 0;
    for (const double value : effect.kernel)
        sum += value;
    effect.divisor = a.number("divisor", 0);
    if (effect.divisor == 0)
        effect.divisor = sum == 0 ? 1 : sum;
    effect.bias = a.number("bias", 0);
    effect.edge = edgeMode(a, EdgeMode::Duplicate);
    effect.keepsAlpha = a.text("preserveAlpha") == "true";
    effect.unit = a.eachWay(notNegative(a.pair("kernelUnitLength")));
    return effect;
}

std::optional<FilterEffect> blendEffect(const FilterAttributes& a) {
    return BlendEffect{blendModeFromName(a.text("mode")).value_or(BlendMode::Normal)};
}

} // namespace

ColorMatrixEffect identityMatrix() {
    return {{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0}};
}

// SVG 1.1, 15.10: away from, or beyond, the luminance of the color.
ColorMatrixEffect saturation(double amount) {
    const double rest = 1 - amount;
    const double r = 0.213 * rest;
    const double g = 0.715 * rest;
    const double b = 0.072 * rest;
    return {{r + amount, g, b, 0, 0, r, g + amount, b, 0, 0, r, g, b + amount, 0, 0, 0, 0, 0, 1, 0}};
}

// SVG 1.1, 15.10: the luminance, and two other parts of the color that turn into each other.
ColorMatrixEffect hueRotation(double degrees) {
    const double c = std::cos(degrees * std::numbers::pi / 180);
    const double s = std::sin(degrees * std::numbers::pi / 180);
    return {{0.213 + c * 0.787 - s * 0.213,
             0.715 - c * 0.715 - s * 0.715,
             0.072 - c * 0.072 + s * 0.928,
             0,
             0,
             0.213 - c * 0.213 + s * 0.143,
             0.715 + c * 0.285 + s * 0.140,
             0.072 - c * 0.072 - s * 0.283,
             0,
             0,
             0.213 - c * 0.213 - s * 0.787,
             0.715 - c * 0.715 + s * 0.715,
             0.072 + c * 0.928 + s * 0.072,
             0,
             0,
             0,
             0,
             0,
             1,
             0}};
}

std::optional<FilterEffect> filterEffect(std::string_view name, const FilterAttributes& a) {
    using Make = std::optional<FilterEffect> (*)(const FilterAttributes&);
    static constexpr std::array<std::pair<std::string_view, Make>, 14> kEffects = {{
        {"feBlend", blendEffect},
        {"feColorMatrix",
         [](const auto& all) { return std::optional<FilterEffect>(colorMatrixEffect(all)); }},
        {"feComponentTransfer", transferEffect},
        {"feComposite", [](const auto& all) { return std::optional<FilterEffect>(compositeEffect(all)); }},
        {"feConvolveMatrix", convolveEffect},
        {"feDisplacementMap",
         [](const auto& all) { return std::optional<FilterEffect>(displacementEffect(all)); }},
        {"feDropShadow", [](const auto& all) { return std::optional<FilterEffect>(dropShadowEffect(all)); }},
        {"feFlood", [](const auto& all) { return std::optional<FilterEffect>(floodEffect(all)); }},
        {"feGaussianBlur", [](const auto& all) { return std::optional<FilterEffect>(blurEffect(all)); }},
        {"feMerge", [](const auto&) { return std::optional<FilterEffect>(MergeEffect{}); }},
        {"feMorphology", [](const auto& all) { return std::optional<FilterEffect>(morphologyEffect(all)); }},
        {"feOffset", [](const auto& all) { return std::optional<FilterEffect>(offsetEffect(all)); }},
        {"feTile", [](const auto&) { return std::optional<FilterEffect>(TileEffect{}); }},
        {"feTurbulence", turbulenceEffect},
    }};
    for (const auto& [effect, make] : kEffects)
        if (name == effect)
            return make(a);
    return lightingEffect(name, a);
}

} // namespace easel::svg
