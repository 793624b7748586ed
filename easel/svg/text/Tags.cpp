#include "easel/svg/text/Tags.h"

#include <algorithm>

namespace easel::svg {

namespace {

std::size_t after(std::string_view text, std::size_t from, std::string_view mark) {
    const std::size_t found = text.find(mark, from);
    return found == std::string_view::npos ? text.size() : found + mark.size();
}

// One past the markup that begins at `begin`, whatever it is.
std::size_t markupEnd(std::string_view text, std::size_t begin) {
    const std::string_view rest = text.substr(begin);
    if (rest.substr(0, 4) == "<!--")
        return after(text, begin + 4, "-->");
    if (rest.substr(0, 9) == "<![CDATA[")
        return after(text, begin + 9, "]]>");
    if (rest.substr(0, 2) == "<?")
        return after(text, begin + 2, "?>");
    return tagEnd(text, begin);
}

struct ElementEnd {
    std::size_t content = 0;
    std::size_t element = 0;
};

ElementEnd findEnd(std::string_view text, std::size_t begin) {
    std::size_t at = tagEnd(text, begin);
    if (closesItself(text, at))
        return {at, at};
    std::size_t depth = 1;
    while ((at = text.find('<', at)) != std::string_view::npos) {
        const std::size_t end = markupEnd(text, at);
        const char kind = at + 1 < text.size() ? text[at + 1] : '\0';
        if (kind == '/' && --depth == 0)
            return {at, end};
        if (kind != '/' && kind != '!' && kind != '?' && !closesItself(text, end))
            ++depth;
        at = end;
    }
    return {text.size(), text.size()};
}

} // namespace

std::size_t tagEnd(std::string_view text, std::size_t begin) {
    for (std::size_t at = begin; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '>')
            return at + 1;
        if (c == '"' || c == '\'')
            at = std::min(text.find(c, at + 1), text.size());
    }
    return text.size();
}

std::size_t elementEnd(std::string_view text, std::size_t begin) {
    return findEnd(text, begin).element;
}

std::size_t contentEnd(std::string_view text, std::size_t begin) {
    return findEnd(text, begin).content;
}

bool closesItself(std::string_view text, std::size_t tagEnd) {
    return tagEnd >= 2 && text[tagEnd - 2] == '/';
}

} // namespace easel::svg
