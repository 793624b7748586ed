// The small parts of an SVG document.
#include "easel/paint/SvgFragments.h"

#include <array>
#include <charconv>
#include <cmath>

namespace easel::paint {

namespace {

std::string hexByte(int value) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    return {kDigits[static_cast<std::size_t>(value / 16)], kDigits[static_cast<std::size_t>(value % 16)]};
}

std::string percentText(std::uint16_t channel) {
    return numberText(channel / 655.35) + "%";
}

void append(std::string& text, char verb, std::initializer_list<drawing::Point> points) {
    text += verb;
    const char* between = "";
    for (const drawing::Point& point : points) {
        text.append(between).append(numberText(point.x)).append(" ").append(numberText(point.y));
        between = " ";
    }
}

} // namespace

std::string numberText(double number) {
    if (!std::isfinite(number))
        return "0";
    std::array<char, 32> digits;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::general, 9);
    return {digits.data(), end.ptr};
}

std::string colorText(const drawing::Rgb16& color) {
    const bool eightBits = color.red % 257 == 0 && color.green % 257 == 0 && color.blue % 257 == 0;
    if (eightBits)
        return std::string("#")
            .append(hexByte(color.red / 257))
            .append(hexByte(color.green / 257))
            .append(hexByte(color.blue / 257));
    std::string text = "rgb(";
    text.append(percentText(color.red)).append(",").append(percentText(color.green)).append(",");
    return text.append(percentText(color.blue)).append(")");
}

std::string pathText(const drawing::Path& path) {
    std::string text;
    const drawing::Point* next = path.points().data();
    for (const drawing::Verb verb : path.verbs()) {
        switch (verb) {
        case drawing::Verb::Move:
        case drawing::Verb::Line:
            if (isFinite(*next))
                append(text, verb == drawing::Verb::Move || text.empty() ? 'M' : 'L', {*next});
            ++next;
            break;
        case drawing::Verb::Cubic:
            if (isFinite(next[0]) && isFinite(next[1]) && isFinite(next[2]) && !text.empty())
                append(text, 'C', {next[0], next[1], next[2]});
            else if (isFinite(next[2]))
                append(text, text.empty() ? 'M' : 'L', {next[2]});
            next += 3;
            break;
        case drawing::Verb::Close:
            if (!text.empty())
                text += 'Z';
            break;
        }
    }
    return text;
}

std::string matrixText(const drawing::Affine& map) {
    std::string text = "matrix(";
    for (const double number : {map.a, map.b, map.c, map.d, map.e, map.f})
        text += numberText(number) + " ";
    text.back() = ')';
    return text;
}

std::string escaped(std::string_view text) {
    std::string result;
    for (const char letter : text) {
        switch (letter) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += letter;
        }
    }
    return result;
}

std::string attribute(std::string_view name, std::string_view value) {
    if (value.empty())
        return {};
    std::string text = " ";
    return text.append(name).append("=\"").append(escaped(value)).append("\"");
}

std::string attribute(std::string_view name, double value) {
    return attribute(name, numberText(value));
}

std::string attributeUnless(double assumed, std::string_view name, double value) {
    return value == assumed ? std::string() : attribute(name, value);
}

} // namespace easel::paint
