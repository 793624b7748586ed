// Taking CSS apart: functions, lists and words, with brackets kept together.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace easel::exchange {

struct CssFunction {
    std::string name;      // in lower case
    std::string arguments; // what stands between the brackets, without comments
};

// Every function in the text whose name ends with "-gradient", in order; one within another is not looked
// at.
std::vector<CssFunction> gradientFunctions(std::string_view text);

// The parts between the commas that stand in no brackets, without blanks around them.
std::vector<std::string_view> commaParts(std::string_view text);
// The words between blanks that stand in no brackets.
std::vector<std::string_view> words(std::string_view text);

struct CssNumber {
    double value = 0;
    std::string unit; // in lower case; "%" for a percentage
};
// The word as a finite number with its unit, if it is one.
std::optional<CssNumber> numberIn(std::string_view word);

// In double quotes, for messages.
std::string quoted(std::string_view text);

} // namespace easel::exchange
