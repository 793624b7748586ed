#include "easel/svg/style/CssText.h"

#include "easel/svg/style/CssIdentifier.h"
#include "easel/svg/text/Scanner.h"
#include "easel/text/Utf8.h"

#include <algorithm>

namespace easel::svg {

std::size_t lengthUntil(std::string_view text, std::string_view ends) {
    char quote = 0;
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quote) {
            quote = c == quote ? '\0' : quote;
            continue;
        }
        if (depth == 0 && ends.find(c) != std::string_view::npos)
            return i;
        if (c == '"' || c == '\'')
            quote = c;
        else if (c == '(' || c == '[')
            ++depth;
        else if ((c == ')' || c == ']') && depth > 0)
            --depth;
    }
    return text.size();
}

std::string unquoted(std::string_view text) {
    std::string_view rest = trimmed(text);
    if (rest.size() >= 2 && (rest.front() == '"' || rest.front() == '\'') && rest.back() == rest.front())
        rest = rest.substr(1, rest.size() - 2);
    std::string result;
    while (true) {
        const std::size_t end = std::min(rest.find('\\'), rest.size());
        result += rest.substr(0, end);
        if (rest.size() - end < 2)
            return result;
        rest.remove_prefix(end + 1);
        // The line goes on behind a backslash at its end.
        if (rest.starts_with("\r\n"))
            rest.remove_prefix(2);
        else if (rest.front() == '\n' || rest.front() == '\r' || rest.front() == '\f')
            rest.remove_prefix(1);
        else
            text::appendUtf8(result, takeEscape(rest));
    }
}

} // namespace easel::svg
