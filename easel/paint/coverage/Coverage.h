// What a shape covers of a row of pixels.
#pragma once

#include "easel/drawing/Path.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

namespace easel::paint {

// Coverage of a pixel that lies wholly inside.
constexpr int kFullCoverage = 32768;
static_assert((kFullCoverage & (kFullCoverage - 1)) == 0, "coverage is folded by masking");
// Pixels whose coverage is found, and whose colors are blended, together. Blocks begin at multiples of it.
constexpr int kCoverageBlock = 8;

// The covered share of a pixel under a fill rule, from the sum of the areas that the windings cover.
// Sums are modulo 2 to the 32, so that no number of windings does harm.
inline std::uint32_t coveredShare(std::uint32_t sum, drawing::FillRule rule) {
    if (rule == drawing::FillRule::NonZero)
        return std::min<std::uint32_t>({sum, 0 - sum, kFullCoverage});
    const std::uint32_t folded = sum % (2 * kFullCoverage);
    return std::min(folded, 2 * kFullCoverage - folded);
}

// Pixels begin (inclusive) to end (exclusive) of a row; at least one.
struct PixelSpan {
    int begin;
    int end;
};

// Both lists go from left to right, and no pixel is in both.
struct RowCoverage {
    // Covered fully.
    std::span<const PixelSpan> full;
    // Covered in part, not at all, or fully where a neighbor is not; each lies within one block.
    std::span<const PixelSpan> partial;
    // Of pixel x at index x, for all pixels of the blocks that partial spans lie in.
    const std::uint32_t* coverage;

    bool empty() const { return full.empty() && partial.empty(); }
    // From the first to the last of a row that is not empty.
    PixelSpan extent() const {
        if (full.empty())
            return {partial.front().begin, partial.back().end};
        if (partial.empty())
            return {full.front().begin, full.back().end};
        return {std::min(full.front().begin, partial.front().begin),
                std::max(full.back().end, partial.back().end)};
    }
};

// Receives the rows of a shape from top to bottom, none of them empty.
class CoverageSink {
  public:
    virtual ~CoverageSink() = default;
    virtual void row(int y, const RowCoverage& coverage) = 0;
};

// Pixels begin (inclusive) to end (exclusive) of a row, all covered alike; coverage is above 0.
struct CoverageRun {
    int begin;
    int end;
    int coverage;
};

// For those who take a row's pixels in one list.
class RowSink : public CoverageSink {
  public:
    void row(int y, const RowCoverage& coverage) final;
    // From left to right and without overlap; at least one.
    virtual void row(int y, std::span<const CoverageRun> runs) = 0;

  private:
    std::vector<CoverageRun> runs_;
};

} // namespace easel::paint
