#include "easel/svg/text/Transform.h"

#include "easel/svg/text/Number.h"
#include "easel/svg/text/Scanner.h"

#include <array>
#include <numbers>

namespace easel::svg {

using drawing::Affine;

namespace {

struct Arguments {
    std::array<double, 6> value{};
    std::size_t count = 0;
};

// An angle in degrees or a length in pixels; CSS writes units where SVG writes none.
std::optional<double> argument(Scanner& scanner) {
    const auto number = scanner.number();
    if (!number)
        return std::nullopt;
    if (scanner.takeWord("deg") || scanner.takeWord("px"))
        return number;
    if (scanner.takeWord("grad"))
        return *number * 0.9;
    if (scanner.takeWord("rad"))
        return *number * 180 / std::numbers::pi;
    if (scanner.takeWord("turn"))
        return *number * 360;
    return number;
}

std::optional<Arguments> arguments(Scanner& scanner) {
    scanner.skipSpaces();
    if (!scanner.take('('))
        return std::nullopt;
    Arguments result;
    scanner.skipSpaces();
    while (!scanner.take(')')) {
        const auto value = argument(scanner);
        if (!value || result.count == result.value.size())
            return std::nullopt;
        result.value[result.count++] = *value;
        scanner.skipSeparator();
    }
    return result;
}

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

std::optional<Affine> oneTransform(std::string_view name, const Arguments& args) {
    const auto& v = args.value;
    const auto is = [&](std::string_view other) { return equalIgnoringCase(name, other); };
    const auto has = [&](std::size_t least, std::size_t most) {
        return args.count >= least && args.count <= most;
    };
    if (is("matrix") && has(6, 6))
        return Affine{v[0], v[1], v[2], v[3], v[4], v[5]};
    if (is("translate") && has(1, 2))
        return Affine::translation(v[0], v[1]);
    if (is("scale") && has(1, 2))
        return Affine::scaling(v[0], args.count == 2 ? v[1] : v[0]);
    if (is("rotate") && (args.count == 1 || args.count == 3))
        return Affine::translation(v[1], v[2]) * Affine::rotation(v[0]) * Affine::translation(-v[1], -v[2]);
    if (is("skewX") && has(1, 1))
        return Affine{1, 0, std::tan(radians(v[0])), 1, 0, 0};
    if (is("skewY") && has(1, 1))
        return Affine{1, std::tan(radians(v[0])), 0, 1, 0, 0};
    if (is("translateX") && has(1, 1))
        return Affine::translation(v[0], 0);
    if (is("translateY") && has(1, 1))
        return Affine::translation(0, v[0]);
    if (is("scaleX") && has(1, 1))
        return Affine::scaling(v[0], 1);
    if (is("scaleY") && has(1, 1))
        return Affine::scaling(1, v[0]);
    return std::nullopt;
}

} // namespace

std::optional<Affine> parseTransform(std::string_view text) {
    Affine result;
    Scanner scanner(trimmed(text));
    if (equalIgnoringCase(scanner.rest(), "none"))
        return result;
    while (!scanner.done()) {
        const std::string_view name = scanner.word();
        const auto args = arguments(scanner);
        const auto map = args ? oneTransform(name, *args) : std::nullopt;
        if (!map)
            return std::nullopt;
        result = result * *map;
        scanner.skipSeparator();
    }
    return result;
}

std::optional<double> parseDegrees(std::string_view text) {
    Scanner scanner(trimmed(text));
    const auto degrees = argument(scanner);
    return scanner.done() ? degrees : std::nullopt;
}

std::string transformText(const Affine& map) {
    return "matrix(" + numberText(map.a) + ' ' + numberText(map.b) + ' ' + numberText(map.c) + ' ' +
           numberText(map.d) + ' ' + numberText(map.e) + ' ' + numberText(map.f) + ')';
}

} // namespace easel::svg
