// States paints of an element in its start tag.
#pragma once

#include "easel/svg/write/RawTag.h"
#include "easel/svg/write/Splices.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

// How strong a statement must be to count. As a Style it is stronger than every style sheet.
enum class StatementStrength : std::uint8_t { Attribute, Style };

struct PaintStatement {
    std::string_view property; // "fill", "stroke" or the opacity of one
    std::string paint;         // without quotes in it
    StatementStrength strength = StatementStrength::Attribute;
};

// Changes the paints, each of another property, and leaves the rest of the tag as it is.
void statePaints(Splices& splices, const RawTag& tag, const std::vector<PaintStatement>& paints);

} // namespace easel::svg
