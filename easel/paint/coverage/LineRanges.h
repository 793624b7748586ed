// Which lines of a flattened curve pass the rows that are painted, so that the others need not be computed.
#pragma once

#include "easel/drawing/Segments.h"

#include <array>
#include <span>

namespace easel::paint {

// Lines `first` to `end` - 1, counted from the curve's start.
struct LineRange {
    int first;
    int end;
};

class LineRanges {
  public:
    // The curve is cut into so many lines of equal parameter length. Holds all of them that have a part
    // between the heights, and perhaps a few more, in ascending order.
    LineRanges(const drawing::CubicSegment& curve, int lines, double top, double bottom);

    std::span<const LineRange> ranges() const { return {ranges_.data(), count_}; }

  private:
    void add(int first, int end);

    // Between the turns of the height it only rises or only falls: three pieces at most, and two lines that
    // hold a turn.
    std::array<LineRange, 5> ranges_{};
    std::size_t count_ = 0;
};

} // namespace easel::paint
