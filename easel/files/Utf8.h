// Single characters of UTF-8 text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace easel::files {

/// A code point as UTF-8. What is none (a surrogate, or beyond the last) becomes U+FFFD.
std::string utf8Of(char32_t character);

/// The code points of a text, in order; every byte that belongs to no well-formed character becomes U+FFFD.
std::vector<char32_t> codePointsOf(std::string_view utf8);

} // namespace easel::files
