// Which letters stand in vertical lines, as their script wants it.
#pragma once

#include "easel/type/Font.h"

namespace easel::type {

// Whether the letter stands; other ones lie on their side.
bool stands(char32_t letter, Upright upright);

} // namespace easel::type
