// The small parts of an SVG document.
#include "easel/paint/SvgFragments.h"

#include <array>
#include <charconv>
#include <cmath>

namespace easel::paint {

namespace {

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
