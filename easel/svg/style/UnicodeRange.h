// Ranges of characters, as style sheets and SVG fonts name them.
#pragma once

#include "easel/type/Font.h"

#include <optional>
#include <string_view>
#include <vector>

namespace easel::svg {

// "U+41", "U+41-5A" or "U+4?". Nothing for anything else, and where it ends before it begins.
std::optional<type::Characters> parseUnicodeRange(std::string_view text);

// Such ranges with commas between them; nothing if one of them is none.
std::optional<std::vector<type::Characters>> parseUnicodeRanges(std::string_view text);

} // namespace easel::svg
