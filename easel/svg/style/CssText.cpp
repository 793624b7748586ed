#include "easel/svg/style/CssText.h"

#include "easel/svg/text/Scanner.h"
#include "easel/text/Hexadecimal.h"
#include "easel/text/Utf8.h"

#include <algorithm>

namespace easel::svg {

namespace {

// What stands behind a backslash: a character by its number, the end of a line, which goes, or any other
// character, which stands for itself.
void appendEscape(std::string& result, std::string_view& rest) {
    constexpr std::size_t kMostDigits = 6;
    char32_t number = 0;
    std::size_t digits = 0;
    for (; digits < std::min(rest.size(), kMostDigits); ++digits) {
        const auto digit = text::hexadecimalDigit(rest[digits]);
        if (!digit)
            break;
        number = number * 16 + *digit;
    }
    rest.remove_prefix(digits);
    if (digits > 0) {
        text::appendUtf8(result, number);
        rest.remove_prefix(!rest.empty() && isSpace(rest.front()) ? 1 : 0);
    } else if (rest.starts_with("\r\n")) {
        rest.remove_prefix(2);
    } else if (!rest.empty()) {
        if (rest.front() != '\n' && rest.front() != '\r' && rest.front() != '\f')
            result += rest.front();
        rest.remove_prefix(1);
    }
}

} // namespace

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
        if (end == rest.size())
            return result;
        rest.remove_prefix(end + 1);
        appendEscape(result, rest);
    }
}

} // namespace easel::svg
