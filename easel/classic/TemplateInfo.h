// How files of gradient templates are told from other files.
#pragma once

#include "easel/classic/AppleDouble.h"
#include "easel/classic/BigEndian.h"

namespace easel::classic {

// Their type and creator.
inline constexpr FinderInfo kTemplateInfo{fourCharacters("GTMP"), fourCharacters("*Kst")};
inline constexpr const char* kTemplateEnding = ".GRD";

} // namespace easel::classic
