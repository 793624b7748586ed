// Fonts as attributes.
#pragma once

#include "easel/type/Font.h"

#include <string>

namespace easel::exports {

// Family, weight, style, stretch, variant and language; all but the families only where they are not the
// usual ones.
std::string fontText(const type::Font& font);

} // namespace easel::exports
