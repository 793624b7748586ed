// The filter of object kinds that a pick may return, as the host interface holds it and as drawings
// understand it.
#pragma once

#include "easel/drawing/Object.h"
#include "host/Objects.h"

namespace easel::runtime {

SelDescrimT filterOf(drawing::KindSet kinds);
// Bits that stand for no kind of Easel's are left out.
drawing::KindSet kindsIn(const SelDescrimT& filter);
// Numbers that the filter has no bit for are ignored.
void admit(SelDescrimT& filter, int kind);

} // namespace easel::runtime
