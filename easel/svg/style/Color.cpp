#include "easel/svg/style/Color.h"

#include "easel/svg/style/ColorMix.h"
#include "easel/svg/style/ColorNames.h"
#include "easel/svg/style/ColorSpaces.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

namespace easel::svg {

using drawing::ColorPaint;
using drawing::Rgb16;

namespace {

std::uint16_t channel16(double value) {
    // A value that is not a number becomes 0.
    return static_cast<std::uint16_t>(std::lround(65535 * (value > 0 ? std::min(value, 1.0) : 0.0)));
}

double clampedOpacity(double value) {
    return value > 0 ? std::min(value, 1.0) : 0.0;
}

ColorPaint paintOf(const Triple& rgb, double opacity) {
    return {{channel16(rgb[0]), channel16(rgb[1]), channel16(rgb[2])}, clampedOpacity(opacity)};
}

ColorPaint paintOfBytes(std::uint32_t rgb, double opacity) {
    const auto channel = [rgb](int shift) { return static_cast<std::uint16_t>((rgb >> shift & 255) * 257); };
    return {{channel(16), channel(8), channel(0)}, opacity};
}

std::optional<ColorPaint> hexColor(std::string_view digits) {
    const bool isShort = digits.size() == 3 || digits.size() == 4;
    if (!isShort && digits.size() != 6 && digits.size() != 8)
        return std::nullopt;
    std::string full;
    for (const char c : digits)
        full.append(isShort ? 2 : 1, c);
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(full.data(), full.data() + full.size(), value, 16);
    if (error != std::errc() || end != full.data() + full.size())
        return std::nullopt;
    if (full.size() == 6)
        return paintOfBytes(value, 1);
    return paintOfBytes(value >> 8, static_cast<double>(value & 255) / 255);
}

// One argument of a color function.
struct Component {
    double value = 0;
    bool percent = false;

    // A percentage of `whole`, or the number itself.
    double of(double whole) const { return percent ? value / 100 * whole : value; }
};

// Angles become degrees; "none" is 0.
std::optional<Component> component(Scanner& scanner) {
    if (scanner.takeWord("none"))
        return Component{};
    const auto number = scanner.number();
    if (!number)
        return std::nullopt;
    if (scanner.take('%'))
        return Component{*number, true};
    if (scanner.takeWord("deg"))
        return Component{*number};
    if (scanner.takeWord("grad"))
        return Component{*number * 0.9};
    if (scanner.takeWord("rad"))
        return Component{*number * 180 / std::numbers::pi};
    if (scanner.takeWord("turn"))
        return Component{*number * 360};
    return Component{*number};
}

struct Arguments {
    std::array<Component, 3> part;
    double opacity = 1;
};

// Three components, then perhaps an opacity after a comma or a slash.
std::optional<Arguments> arguments(Scanner& scanner) {
    Arguments result;
    for (Component& part : result.part) {
        scanner.skipSeparator();
        const auto found = component(scanner);
        if (!found)
            return std::nullopt;
        part = *found;
    }
    scanner.skipSpaces();
    if (scanner.take('/') || scanner.take(',')) {
        scanner.skipSpaces();
        const auto opacity = component(scanner);
        if (!opacity)
            return std::nullopt;
        result.opacity = opacity->of(1);
    }
    scanner.skipSpaces();
    if (!scanner.take(')') || !scanner.done())
        return std::nullopt;
    return result;
}

double unit(double value) {
    return std::clamp(value, 0.0, 1.0);
}

Triple rgbOf(const std::array<Component, 3>& p) {
    const auto channel = [](const Component& c) { return c.percent ? c.value / 100 : c.value / 255; };
    return {channel(p[0]), channel(p[1]), channel(p[2])};
}

// Saturation and the like, which stand as percentages or as plain numbers of the same size.
double hundredth(const Component& c) {
    return unit(c.value / 100);
}

std::optional<Triple> functionColor(std::string_view name, const std::array<Component, 3>& p) {
    const auto is = [name](std::string_view other) { return equalIgnoringCase(name, other); };
    if (is("rgb") || is("rgba"))
        return rgbOf(p);
    if (is("hsl") || is("hsla"))
        return hslToRgb(p[0].value, hundredth(p[1]), hundredth(p[2]));
    if (is("hwb"))
        return hwbToRgb(p[0].value, hundredth(p[1]), hundredth(p[2]));
    if (is("lab"))
        return labToRgb({std::clamp(p[0].value, 0.0, 100.0), p[1].of(125), p[2].of(125)});
    if (is("lch"))
        return labToRgb(
            polarToAxes({std::clamp(p[0].value, 0.0, 100.0), std::max(0.0, p[1].of(150)), p[2].value}));
    if (is("oklab"))
        return oklabToRgb({unit(p[0].of(1)), p[1].of(0.4), p[2].of(0.4)});
    if (is("oklch"))
        return oklabToRgb(polarToAxes({unit(p[0].of(1)), std::max(0.0, p[1].of(0.4)), p[2].value}));
    return std::nullopt;
}

std::optional<ColorPaint> functionPaint(std::string_view name, Scanner& scanner) {
    std::string_view space;
    if (equalIgnoringCase(name, "color")) {
        scanner.skipSpaces();
        space = scanner.word();
        if (!isColorSpace(space))
            return std::nullopt;
    }
    const auto args = arguments(scanner);
    if (!args)
        return std::nullopt;
    if (!space.empty())
        return paintOf(spaceToRgb(space, {args->part[0].of(1), args->part[1].of(1), args->part[2].of(1)}),
                       args->opacity);
    const auto rgb = functionColor(name, args->part);
    if (!rgb)
        return std::nullopt;
    return paintOf(*rgb, args->opacity);
}

void appendPercent(std::string& text, std::uint16_t channel) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), channel / 655.35,
                                   std::chars_format::fixed, 4);
    text.append(buffer.data(), end.ptr);
    text += '%';
}

} // namespace

std::optional<ColorPaint> parseColor(std::string_view text, const ColorPaint& currentColor) {
    Scanner scanner(trimmed(text));
    if (scanner.take('#'))
        return hexColor(scanner.rest());
    const std::string_view name = scanner.word();
    const bool isFunction = scanner.take('(');
    if (isFunction && equalIgnoringCase(name, "color-mix"))
        return scanner.rest().ends_with(')')
                   ? parseColorMix(scanner.rest().substr(0, scanner.rest().size() - 1), currentColor)
                   : std::nullopt;
    if (isFunction)
        return functionPaint(name, scanner);
    if (!scanner.done())
        return std::nullopt;
    if (equalIgnoringCase(name, "currentcolor"))
        return currentColor;
    if (equalIgnoringCase(name, "transparent"))
        return ColorPaint{{}, 0};
    if (const auto rgb = namedColor(name))
        return paintOfBytes(*rgb, 1);
    return std::nullopt;
}

std::string colorText(const Rgb16& color) {
    if (color.red % 257 == 0 && color.green % 257 == 0 && color.blue % 257 == 0) {
        static constexpr std::string_view kDigits = "0123456789abcdef";
        std::string text = "#";
        for (const int channel : {color.red / 257, color.green / 257, color.blue / 257}) {
            text += kDigits[static_cast<std::size_t>(channel / 16)];
            text += kDigits[static_cast<std::size_t>(channel % 16)];
        }
        return text;
    }
    std::string text = "rgb(";
    appendPercent(text, color.red);
    text += ',';
    appendPercent(text, color.green);
    text += ',';
    appendPercent(text, color.blue);
    return text + ')';
}

} // namespace easel::svg
