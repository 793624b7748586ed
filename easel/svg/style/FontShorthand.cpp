#include "easel/svg/style/FontShorthand.h"

#include "easel/svg/style/Words.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <string>

namespace easel::svg {

namespace {

// What a word before the size states; null if it is the size.
std::string_view FontStatements::*statementOf(std::string_view word) {
    if (isOneOf(word, {"italic", "oblique"}))
        return &FontStatements::style;
    if (isOneOf(word, {"small-caps"}))
        return &FontStatements::variant;
    if (isOneOf(word, {"bold", "bolder", "lighter"}))
        return &FontStatements::weight;
    const std::string lower = text::lowerCase(word);
    if (lower.ends_with("condensed") || lower.ends_with("expanded"))
        return &FontStatements::stretch;
    const bool isNumber = !word.empty() && std::all_of(word.begin(), word.end(), text::isDigit);
    return isNumber ? &FontStatements::weight : nullptr;
}

std::string_view takeWord(std::string_view& rest) {
    const std::size_t end = std::min(rest.find_first_of(" \t\r\n"), rest.size());
    const std::string_view word = rest.substr(0, end);
    rest = trimmed(rest.substr(end));
    return word;
}

} // namespace

FontStatements parseFont(std::string_view shorthand) {
    if (isOneOf(shorthand, {"inherit", "initial", "unset"}))
        return {shorthand, shorthand, shorthand, shorthand, shorthand, shorthand};
    FontStatements font;
    std::string_view rest = trimmed(shorthand);
    std::string_view word = takeWord(rest);
    for (; isOneOf(word, {"normal"}) || statementOf(word); word = takeWord(rest))
        if (const auto statement = statementOf(word))
            font.*statement = word;
    const std::size_t slash = word.find('/');
    // The height of a line may stand apart from its slash.
    const bool endsInSlash = slash != std::string_view::npos && slash + 1 == word.size();
    if (endsInSlash || (rest.starts_with('/') && takeWord(rest).size() == 1))
        takeWord(rest);
    if (!word.empty() && !rest.empty()) {
        font.size = word.substr(0, slash);
        font.families = rest;
    }
    return font;
}

} // namespace easel::svg
