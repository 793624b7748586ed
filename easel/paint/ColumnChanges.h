// By how much the coverage of a row changes from column to column, as its edges leave it.
#pragma once

#include "easel/paint/Coverage.h"
#include "easel/paint/TouchedBlocks.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace easel::paint {

// Keeps its memory from one shape to the next.
class ColumnChanges {
  public:
    // Makes room for columns 0 to `last`.
    void reserve(int last) {
        const std::size_t words =
            static_cast<std::size_t>(last) / kCoverageBlock / TouchedBlocks::kInWord + 1;
        if (touched_.size() >= words * TouchedBlocks::kInWord)
            return;
        touched_.assign(words * TouchedBlocks::kInWord, 0);
        changes_.assign(touched_.size() * kCoverageBlock, 0);
    }
    std::size_t columns() const { return changes_.size(); }

    // The part of an edge that lies in the row: its leftmost and rightmost place, how much it sinks per
    // column and over all. Both are in parts of a pixel as kFullCoverage counts them and negative for edges
    // that lead upwards. Reaches one column beyond the rightmost place.
    void addEdge(double left, double right, double rise, int cover) {
        const int first = static_cast<int>(left);
        if (right > first + 1)
            return addAcross(left, first, right, static_cast<int>(right), rise, cover);
        // What lies left of the edge's middle is covered only from the next column on.
        const int later = nearest(((left + right) / 2 - first) * cover);
        put(first, cover - later);
        put(first + 1, later);
        touch(first);
        touch(first + 1);
    }

    std::uint32_t* data() { return changes_.data(); }
    std::uint8_t* touched() { return touched_.data(); }

  private:
    static int nearest(double value) { return static_cast<int>(std::lrint(value)); }

    // Over several columns the coverage grows by a triangle, then linearly, then by what the last triangle
    // leaves.
    void addAcross(double left, int first, double right, int last, double rise, int cover) {
        const double head = first + 1 - left;
        int before = nearest(head * head / 2 * rise);
        put(first, before);
        if (last > first + 1)
            before = addLinear(first + 1, last, (head + 0.5) * rise, rise, before);
        const double tail = right - last;
        const int now = cover - nearest(tail * tail / 2 * rise);
        put(last, now - before);
        put(last + 1, cover - now);
        for (int column = first; column < last + 1; column += kCoverageBlock)
            touch(column);
        touch(last + 1);
    }
    // Gives what the columns grow to.
    int addLinear(int begin, int end, double first, double rise, int before) {
        constexpr double kFraction = 4294967296.0; // 2 to the 32
        const auto step = static_cast<std::int64_t>(rise * kFraction);
        auto grown = static_cast<std::int64_t>((first + 0.5) * kFraction);
        for (int column = begin; column < end; ++column) {
            const auto now = static_cast<int>(grown >> 32);
            put(column, now - before);
            before = now;
            grown += step;
        }
        return before;
    }
    void put(int column, int amount) {
        changes_[static_cast<std::size_t>(column)] += static_cast<std::uint32_t>(amount);
    }
    void touch(int column) { touched_[static_cast<std::size_t>(column) / kCoverageBlock] = 1; }

    std::vector<std::uint32_t> changes_;
    std::vector<std::uint8_t> touched_; // 1 for blocks with changes
};

} // namespace easel::paint
