// Reading a number that a user typed.
#include "Gradient/model/DecimalNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>

namespace {

/// How the digits of a number are written.
struct CNotation {
    std::chars_format format;
    std::string_view digits;
    std::string_view exponentLetters;
    /// Powers of the exponent's base in one digit.
    long digitWeight;
};

CNotation const kDecimalNotation{std::chars_format::general, "0123456789", "eE", 1};
CNotation const kHexNotation{std::chars_format::hex, "0123456789abcdefABCDEF", "pP", 4};

void RemoveBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
}

/// Removes a sign. The result is the factor that it stands for.
double RemoveSign(std::string_view& text) {
    bool const negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return negative ? -1.0 : 1.0;
}

/// The text up to an exponent with two signs, which is none; reading hexadecimal digits would take it for
/// one.
std::string_view BeforeDoubleSign(std::string_view text) {
    return text.substr(0, std::min(text.find("p+-"), text.find("P+-")));
}

/// Removes the two characters that hexadecimal digits follow, if they do.
bool RemoveHexPrefix(std::string_view& text) {
    if (!text.starts_with("0x") && !text.starts_with("0X")) {
        return false;
    }
    std::string_view const rest = text.substr(text.starts_with("0x.") || text.starts_with("0X.") ? 3 : 2);
    if (rest.empty() || kHexNotation.digits.find(rest.front()) == std::string_view::npos) {
        return false;
    }
    text = BeforeDoubleSign(text.substr(2));
    return true;
}

/// The exponent that is written behind the digits. One with more digits than fit is as large as can be.
long WrittenExponent(std::string_view exponent) {
    constexpr long kLargest = std::numeric_limits<long>::max() / 2;
    double const sign = RemoveSign(exponent);
    long value = 0;
    if (std::from_chars(exponent.begin(), exponent.end(), value).ec == std::errc::result_out_of_range) {
        value = kLargest;
    }
    return sign < 0.0 ? -std::min(value, kLargest) : std::min(value, kLargest);
}

/// Whether a number that does not fit is too large rather than too small: whether its first digit that is not
/// 0 stands for one or more.
bool IsTooLarge(std::string_view number, CNotation const& notation) {
    std::string_view const digits = number.substr(0, number.find_first_of(notation.exponentLetters));
    std::string_view const exponent = number.substr(std::min(digits.size() + 1, number.size()));
    auto const point = static_cast<long>(std::min(digits.find('.'), digits.size()));
    auto const first = static_cast<long>(digits.find_first_not_of("0."));
    long const place = first < point ? point - first - 1 : point - first;
    return place * notation.digitWeight + WrittenExponent(exponent) >= 0;
}

/// Nothing for text that does not begin with a number.
std::optional<double> ReadUnsigned(std::string_view text, CNotation const& notation) {
    double value = 0.0;
    auto const [end, error] = std::from_chars(text.begin(), text.end(), value, notation.format);
    if (error == std::errc::result_out_of_range) {
        std::string_view const number(text.begin(), static_cast<std::size_t>(end - text.begin()));
        return IsTooLarge(number, notation) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    if (error != std::errc() || std::isnan(value)) {
        return std::nullopt;
    }
    return value;
}

} // namespace

double ReadDecimal(char const* text) {
    // std::atof would follow the desktop's language.
    std::string_view rest(text);
    RemoveBlanks(rest);
    double const sign = RemoveSign(rest);
    if (rest.starts_with('-')) {
        return 0.0;
    }
    CNotation const& notation = RemoveHexPrefix(rest) ? kHexNotation : kDecimalNotation;
    std::optional<double> const number = ReadUnsigned(rest, notation);
    return number ? sign * *number : 0.0;
}
