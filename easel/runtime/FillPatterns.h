// Fill patterns of the interface and what drawings know of them.
#pragma once

#include "easel/drawing/Object.h"
#include "host/Objects.h"

namespace easel::runtime {

// All rows set.
const SharedResourcePtr<CPatRecord>& blackPattern();

// Which of the kinds that a drawing tells apart the pattern is; an empty pointer is none.
drawing::FillPattern fillPatternOf(const SharedResourcePtr<CPatRecord>& pattern);

} // namespace easel::runtime
