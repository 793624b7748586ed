// By how much coverage changes from column to column in a few rows of a shape, as the edges leave it.
#pragma once

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/coverage/TouchedBlocks.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace easel::paint {

// Rows whose edges are gone through together: what one edge leaves in a row has long reached memory when the
// row is summed up.
constexpr int kCoverageBandRows = 16;

// Keeps its memory from one shape to the next.
class CoverageBand {
  public:
    // Makes room for columns 0 to `last`, and for a vector that begins in one of them.
    void reserve(int last) {
        const std::size_t blocks = static_cast<std::size_t>(last) / kCoverageBlock + 2;
        const std::size_t words = blocks / TouchedBlocks::kInWord + 1;
        if (blocks_ >= words * TouchedBlocks::kInWord)
            return;
        blocks_ = words * TouchedBlocks::kInWord;
        touched_.assign(blocks_ * kCoverageBandRows, 0);
        changes_.assign(blocks_ * kCoverageBlock * kCoverageBandRows, 0);
    }
    std::size_t columns() const { return blocks_ * kCoverageBlock; }

    // Rows count from 0 on at the band's top.
    std::uint32_t* changes(std::size_t row) { return changes_.data() + row * columns(); }
    // 1 for each block with changes.
    std::uint8_t* touched(std::size_t row) { return touched_.data() + row * blocks_; }

  private:
    std::size_t blocks_ = 0; // in a row
    std::vector<std::uint32_t> changes_;
    std::vector<std::uint8_t> touched_;
};

} // namespace easel::paint
