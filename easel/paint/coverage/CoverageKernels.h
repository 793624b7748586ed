// The summing up of coverage, compiled for each SIMD instruction set and chosen when the program runs. All of
// them give the same coverage.
#pragma once

#include "easel/paint/coverage/CoverageLists.h"

#include <cstddef>
#include <cstdint>

namespace easel::paint {

// The changes of coverage of a row. There are none outside of touched blocks, which have a byte of 1.
struct ChangedRow {
    std::uint32_t* changes;      // by column, on a multiple of 16 bytes
    const std::uint8_t* touched; // by block
    // The blocks that may be touched; both are multiples of TouchedBlocks::kInWord.
    std::size_t firstBlock;
    std::size_t endBlock;
};

// Sums up changes from left to right and lists what they come to under the fill rule. Sets them to 0.
void sumCoverage(const ChangedRow& row, drawing::FillRule rule, CoverageLists& lists);

} // namespace easel::paint
