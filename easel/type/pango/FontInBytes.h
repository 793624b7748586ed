// A font in memory, which FreeType reads and HarfBuzz shapes: it is installed nowhere.
#pragma once

#include "easel/type/LoadedFont.h"

#include <memory>
#include <string>

namespace easel::type {

// Null unless the bytes are those of a TrueType or OpenType font, packed as WOFF or WOFF2 or not, that has
// outlines.
std::shared_ptr<LoadedFont> loadFont(std::string bytes);

} // namespace easel::type
