#include "easel/svg/style/ColorMix.h"

#include "easel/svg/style/Color.h"
#include "easel/svg/style/ColorSpaces.h"
#include "easel/svg/text/Length.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace easel::svg {

using drawing::ColorPaint;

namespace {

constexpr double kWhole = 65535;

struct Part {
    ColorPaint color;
    std::optional<double> share;
};

// The length of the text before the first comma that is in no brackets.
std::size_t lengthToComma(std::string_view text) {
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (depth == 0 && text[i] == ',')
            return i;
    }
    return text.size();
}

// A color, with a percentage before or after it or none.
std::optional<Part> parsePart(std::string_view text, const ColorPaint& currentColor) {
    text = trimmed(text);
    Part part;
    const std::size_t first = text.find_first_of(" \t\n");
    const std::size_t last = text.find_last_of(" \t\n");
    if (first != std::string_view::npos && text.ends_with('%')) {
        part.share = parseFraction(text.substr(last + 1));
        text = trimmed(text.substr(0, last));
    } else if (first != std::string_view::npos && text.substr(0, first).ends_with('%')) {
        part.share = parseFraction(text.substr(0, first));
        text = trimmed(text.substr(first));
    }
    // Mixtures of mixtures would have to be read by recursion.
    if (equalIgnoringCase(text.substr(0, 10), "color-mix(") ||
        (part.share && !(*part.share >= 0 && *part.share <= 1)))
        return std::nullopt;
    const auto color = parseColor(text, currentColor);
    if (!color)
        return std::nullopt;
    part.color = *color;
    return part;
}

enum class Space : std::uint8_t { Srgb, Linear, Oklab };

std::optional<Space> parseSpace(std::string_view text) {
    Scanner scanner(trimmed(text));
    if (!scanner.takeWord("in "))
        return std::nullopt;
    const std::string_view name = trimmed(scanner.rest());
    if (equalIgnoringCase(name, "srgb"))
        return Space::Srgb;
    if (equalIgnoringCase(name, "oklab"))
        return Space::Oklab;
    if (equalIgnoringCase(name, "srgb-linear") || equalIgnoringCase(name.substr(0, 3), "xyz"))
        return Space::Linear;
    return std::nullopt;
}

Triple toSpace(const drawing::Rgb16& color, Space space) {
    const Triple rgb{color.red / kWhole, color.green / kWhole, color.blue / kWhole};
    if (space == Space::Srgb)
        return rgb;
    return space == Space::Linear ? rgbToLinear(rgb) : rgbToOklab(rgb);
}

Triple toRgb(const Triple& values, Space space) {
    if (space == Space::Srgb)
        return values;
    return space == Space::Linear ? spaceToRgb("srgb-linear", values) : oklabToRgb(values);
}

// Colors count as much as they are opaque.
ColorPaint mixed(const Part& one, const Part& other, double share, Space space) {
    const double weight = one.color.opacity * share;
    const double otherWeight = other.color.opacity * (1 - share);
    const double opacity = weight + otherWeight;
    if (!(opacity > 0))
        return {{}, 0};
    const Triple a = toSpace(one.color.color, space);
    const Triple b = toSpace(other.color.color, space);
    Triple sum{};
    for (std::size_t i = 0; i < sum.size(); ++i)
        sum[i] = (a[i] * weight + b[i] * otherWeight) / opacity;
    const Triple rgb = toRgb(sum, space);
    const auto channel = [](double value) {
        return static_cast<std::uint16_t>(std::lround(kWhole * std::clamp(value, 0.0, 1.0)));
    };
    return {{channel(rgb[0]), channel(rgb[1]), channel(rgb[2])}, opacity};
}

} // namespace

std::optional<ColorPaint> parseColorMix(std::string_view arguments, const ColorPaint& currentColor) {
    std::array<std::string_view, 3> texts;
    for (std::string_view& text : texts) {
        const std::size_t count = lengthToComma(arguments);
        text = arguments.substr(0, count);
        arguments.remove_prefix(std::min(count + 1, arguments.size()));
    }
    const auto space = parseSpace(texts[0]);
    const auto one = parsePart(texts[1], currentColor);
    const auto other = parsePart(texts[2], currentColor);
    if (!space || !one || !other || !arguments.empty())
        return std::nullopt;
    const double first = one->share.value_or(1 - other->share.value_or(0.5));
    const double second = other->share.value_or(1 - first);
    const double sum = first + second;
    if (!(sum > 0))
        return std::nullopt;
    ColorPaint result = mixed(*one, *other, first / sum, *space);
    // Shares that do not fill the whole leave the rest transparent.
    result.opacity *= std::min(sum, 1.0);
    return result;
}

} // namespace easel::svg
