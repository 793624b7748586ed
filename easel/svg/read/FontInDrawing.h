// Fonts that are elements of another drawing.
#pragma once

#include "easel/svg/text/ReadError.h"
#include "easel/type/DrawnFont.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

// Whether the bytes may be a drawing, packed or not: no font of another kind begins like one.
bool mayHoldFonts(std::string_view bytes);

// The `font` element that "#id" refers to, or the first one for an empty reference, for the font that is
// named. Nothing if there is none, if the drawing is damaged, or if it is larger than the limit in bytes when
// unpacked.
std::optional<type::DrawnFont> readFontIn(std::string bytes, std::string_view reference, std::size_t limit,
                                          const type::Font& named, Budget& budget);

} // namespace easel::svg
