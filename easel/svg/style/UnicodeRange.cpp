#include "easel/svg/style/UnicodeRange.h"

#include "easel/svg/text/Scanner.h"
#include "easel/text/Hexadecimal.h"

namespace easel::svg {

namespace {

std::optional<char32_t> hexadecimal(std::string_view digits, char32_t forAny) {
    char32_t value = 0;
    if (digits.empty() || digits.size() > 6)
        return std::nullopt;
    for (const char c : digits) {
        const auto digit = c == '?' ? std::optional<unsigned>(forAny) : text::hexadecimalDigit(c);
        if (!digit)
            return std::nullopt;
        value = value * 16 + *digit;
    }
    return value;
}

} // namespace

std::optional<type::Characters> parseUnicodeRange(std::string_view text) {
    Scanner scanner(text);
    if (!scanner.takeWord("U+"))
        return std::nullopt;
    text = scanner.rest();
    const std::size_t dash = text.find('-');
    const auto first = hexadecimal(text.substr(0, dash), 0);
    const auto last = hexadecimal(dash == std::string_view::npos ? text : text.substr(dash + 1), 0xf);
    if (!first || !last || *first > *last)
        return std::nullopt;
    return type::Characters{*first, *last};
}

std::optional<std::vector<type::Characters>> parseUnicodeRanges(std::string_view text) {
    std::vector<type::Characters> ranges;
    Scanner scanner(text);
    while (!scanner.done()) {
        const auto range = parseUnicodeRange(trimmed(scanner.until(',')));
        if (!range)
            return std::nullopt;
        ranges.push_back(*range);
    }
    return ranges;
}

} // namespace easel::svg
