// Turns rows into columns, for effects that work along one of them.
#pragma once

#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

Surface transposed(const Surface& picture);

} // namespace easel::paint
