// One outline made of several.
#pragma once

#include "easel/drawing/Path.h"

namespace easel::type {

// Adds an outline, mapped, to another.
void append(drawing::Path& path, const drawing::Path& other, const drawing::Affine& map);

} // namespace easel::type
