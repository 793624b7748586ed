#include "easel/svg/text/Scanner.h"

#include <charconv>
#include <cstdlib>
#include <string>

namespace easel::svg {

void Scanner::skipSpaces() {
    while (!rest_.empty() && isSpace(rest_.front()))
        rest_.remove_prefix(1);
}

void Scanner::skipSeparator() {
    skipSpaces();
    if (take(','))
        skipSpaces();
}

bool Scanner::take(char c) {
    if (peek() != c || rest_.empty())
        return false;
    rest_.remove_prefix(1);
    return true;
}

bool Scanner::takeWord(std::string_view word) {
    if (!equalIgnoringCase(rest_.substr(0, word.size()), word))
        return false;
    rest_.remove_prefix(word.size());
    return true;
}

char Scanner::next() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
}

std::optional<double> Scanner::number() {
    const char* begin = rest_.data();
    const char* const end = begin + rest_.size();
    if (begin != end && *begin == '+')
        ++begin;
    const char* digits = begin;
    if (digits != end && *digits == '-' && digits == rest_.data())
        ++digits;
    if (digits != end && *digits == '.')
        ++digits;
    // The library also reads "inf" and "nan", which are no numbers here.
    if (digits == end || !text::isDigit(*digits))
        return std::nullopt;
    double value = 0;
    const auto [after, error] = std::from_chars(begin, end, value);
    // The library does not tell too large from too small; this one does.
    if (error == std::errc::result_out_of_range)
        value = std::strtod(std::string(begin, after).c_str(), nullptr);
    rest_.remove_prefix(static_cast<std::size_t>(after - rest_.data()));
    return value;
}

std::string_view Scanner::word() {
    std::size_t count = 0;
    while (count < rest_.size() && isWordByte(rest_[count]))
        ++count;
    const std::string_view result = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return result;
}

std::string_view Scanner::until(char end) {
    const std::size_t count = std::min(rest_.find(end), rest_.size());
    const std::string_view result = rest_.substr(0, count);
    rest_.remove_prefix(std::min(count + 1, rest_.size()));
    return result;
}

} // namespace easel::svg
