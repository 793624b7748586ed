// The summing up of coverage, compiled for each SIMD instruction set and chosen when the program runs. All of
// them give the same coverage.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/paint/TouchedBlocks.h"

#include <cstdint>

namespace easel::paint {

// Sums up the changes of coverage of a row from left to right and writes what they come to under the fill
// rule. Only touched blocks are read and written; there are no changes outside of them. The changes are set
// to 0. Both arrays lie on multiples of 16 bytes.
void sumCoverage(TouchedBlocks touched, std::uint32_t* changes, std::uint32_t* coverage,
                 drawing::FillRule rule);

} // namespace easel::paint
