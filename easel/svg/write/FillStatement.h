// States the fill of an element in its start tag.
#pragma once

#include "easel/svg/write/RawTag.h"
#include "easel/svg/write/Splices.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace easel::svg {

// How strong a stated fill must be to count.
enum class FillStatement : std::uint8_t { Attribute, Style };

// Changes the fill and leaves the rest of the tag as it is. `fill` is a paint without quotes in it. As a
// Style the statement is stronger than every style sheet.
void stateFill(Splices& splices, const RawTag& tag, const std::string& fill, FillStatement statement);

} // namespace easel::svg
