// Finds where tags and elements end in the text of well-formed XML.
#pragma once

#include <cstddef>
#include <string_view>

namespace easel::svg {

// One past the '>' of the tag that begins at `begin`; quoted '>' do not count.
std::size_t tagEnd(std::string_view text, std::size_t begin);

// One past the element whose start tag begins at `begin`, end tag included.
std::size_t elementEnd(std::string_view text, std::size_t begin);

// Where the end tag of that element begins; for an element without one, the element's end.
std::size_t contentEnd(std::string_view text, std::size_t begin);

// Whether the tag between these places closes itself: <.../>.
bool closesItself(std::string_view text, std::size_t tagEnd);

} // namespace easel::svg
