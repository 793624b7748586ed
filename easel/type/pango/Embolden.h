// Makes letters bold for a font that has no bold ones.
#pragma once

#include "easel/drawing/Path.h"

namespace easel::type {

// The outline with its stems wider by a twenty-fourth of an em, which is what others do who draw such fonts.
// Its lower left corner stays. `unitsPerEm`: of the outline; its vertical axis points upwards.
drawing::Path emboldened(const drawing::Path& outline, double unitsPerEm);

} // namespace easel::type
