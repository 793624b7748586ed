// Which texts are values of a property.
#pragma once

#include "easel/svg/style/Property.h"

#include <string_view>

namespace easel::svg {

// Whether the text means something where the property is declared. What asks for a custom property may.
bool isValueOf(Property property, std::string_view text);

// Adds a declaration to what is stated. One whose value is none of its property's beats no other.
void declare(StatedStyle& style, const Declaration& declaration);

} // namespace easel::svg
