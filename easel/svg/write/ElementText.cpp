// Writes attributes, path data and the start tag of a document.
#include "easel/svg/write/ElementText.h"

#include "easel/svg/text/Number.h"
#include "easel/svg/text/Transform.h"

#include <cmath>
#include <initializer_list>

namespace easel::svg {

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

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else if (c == '"')
            result += "&quot;";
        else
            result += c;
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
    return attribute(name, std::string_view(numberText(std::isfinite(value) ? value : 0)));
}

std::string attributeUnless(double assumed, std::string_view name, double value) {
    return value == assumed ? std::string() : attribute(name, value);
}

std::string attributeUnless(std::string_view assumed, std::string_view name, std::string_view value) {
    return value == assumed ? std::string() : attribute(name, value);
}

std::string transformAttribute(std::string_view name, const drawing::Affine& map) {
    return map == drawing::Affine() ? std::string() : attribute(name, transformText(map));
}

std::string referenceTo(std::string_view id) {
    std::string text = "url(#";
    return text.append(id).append(")");
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

std::string documentTag(double width, double height, double scale) {
    return "<svg" + attribute("xmlns", "http://www.w3.org/2000/svg") + attribute("width", width * scale) +
           attribute("height", height * scale) +
           attribute("viewBox", "0 0 " + numberText(width) + ' ' + numberText(height)) + '>';
}

} // namespace easel::svg
