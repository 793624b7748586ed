// The texts that style sheets are made of.
#pragma once

#include <string>
#include <string_view>

namespace easel::svg {

// The length of the text before the first of `ends` that is not inside quotes or brackets.
std::size_t lengthUntil(std::string_view text, std::string_view ends);

// What a text in quotes, or one in brackets without, stands for: its quotes are left out, and its escapes
// replaced.
std::string unquoted(std::string_view text);

} // namespace easel::svg
