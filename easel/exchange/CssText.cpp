// Splits CSS text at blanks and commas outside brackets.
#include "easel/exchange/CssText.h"

#include "easel/text/Ascii.h"

#include <charconv>
#include <cmath>

namespace easel::exchange {
namespace {

using text::isSpace;
using text::lowerCase;
using text::trimmed;

bool isNameCharacter(char c) {
    return text::isLetter(c) || text::isDigit(c) || c == '-';
}

std::string withoutComments(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto begin = text.find("/*");
        result += text.substr(0, begin);
        if (begin == std::string_view::npos)
            break;
        result += ' ';
        const auto end = text.find("*/", begin + 2);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 2);
    }
    return result;
}

// Calls `found` for each character outside brackets.
template <class Found> void outsideBrackets(std::string_view text, Found found) {
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == ')' && depth > 0)
            --depth;
        if (depth == 0)
            found(i);
        if (text[i] == '(')
            ++depth;
    }
}

// One past the bracket that closes the one before `begin`.
std::size_t closingBracket(std::string_view text, std::size_t begin) {
    int depth = 1;
    for (std::size_t i = begin; i < text.size(); ++i) {
        depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (depth == 0)
            return i;
    }
    return std::string_view::npos;
}

} // namespace

std::vector<CssFunction> gradientFunctions(std::string_view css) {
    const std::string text = withoutComments(css);
    std::vector<CssFunction> functions;
    for (auto bracket = text.find('('); bracket != std::string::npos; bracket = text.find('(', bracket + 1)) {
        std::size_t begin = bracket;
        while (begin > 0 && isNameCharacter(text[begin - 1]))
            --begin;
        auto name = lowerCase(std::string_view(text).substr(begin, bracket - begin));
        if (!name.ends_with("-gradient"))
            continue;
        const auto end = closingBracket(text, bracket + 1);
        if (end == std::string_view::npos)
            break;
        functions.push_back({std::move(name), text.substr(bracket + 1, end - bracket - 1)});
        bracket = end;
    }
    return functions;
}

std::vector<std::string_view> commaParts(std::string_view text) {
    std::vector<std::string_view> parts;
    std::size_t begin = 0;
    outsideBrackets(text, [&](std::size_t i) {
        if (text[i] == ',') {
            parts.push_back(trimmed(text.substr(begin, i - begin)));
            begin = i + 1;
        }
    });
    parts.push_back(trimmed(text.substr(begin)));
    return parts;
}

std::vector<std::string_view> words(std::string_view text) {
    std::vector<std::string_view> found;
    std::size_t begin = 0;
    const auto take = [&](std::size_t end) {
        if (end > begin)
            found.push_back(text.substr(begin, end - begin));
    };
    outsideBrackets(text, [&](std::size_t i) {
        if (isSpace(text[i])) {
            take(i);
            begin = i + 1;
        }
    });
    take(text.size());
    return found;
}

std::optional<CssNumber> numberIn(std::string_view word) {
    if (word.starts_with('+'))
        word.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || !std::isfinite(value) || word.find_first_of("iInN") == 0)
        return std::nullopt;
    auto unit = lowerCase(word.substr(static_cast<std::size_t>(end - word.data())));
    for (const char c : unit)
        if (!(c >= 'a' && c <= 'z') && c != '%')
            return std::nullopt;
    return CssNumber{value, std::move(unit)};
}

std::string quoted(std::string_view text) {
    std::string result(1, '"');
    result += text;
    return result += '"';
}

} // namespace easel::exchange
