// The lists in which a row of coverage is handed over.
#pragma once

#include "easel/paint/coverage/Coverage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace easel::paint {

// Gives pixels that are all covered alike their coverage, and lists them block by block from `list` on.
// Returns the list's new end.
PixelSpan* listEvenPartial(const PixelSpan& pixels, std::uint32_t covered, std::uint32_t* coverage,
                           PixelSpan* list);

// Keeps its memory from one row to the next.
class CoverageLists {
  public:
    // Goes through a row from left to right and lists what it comes by.
    class Writer {
      public:
        explicit Writer(CoverageLists& lists)
            : left_(lists.left_), right_(lists.right_), reached_(lists.left_), full_(lists.full_.data()),
              partial_(lists.partial_.data()), coverage_(lists.coverage_.data()) {}

        // Of pixel x at index x; to be filled in before a block is added.
        std::uint32_t* coverage() const { return coverage_; }
        // The block that begins at a column, after what lies left of it.
        void addBlock(int column) {
            addEven(column);
            reached_ = column + kCoverageBlock;
            partial_->begin = std::max(column, left_);
            partial_->end = std::min(reached_, right_);
            partial_ += static_cast<int>(partial_->begin < partial_->end);
            covered_ = coverage_[reached_ - 1];
        }
        // After the last block.
        void finish(CoverageLists& lists) {
            addEven(right_);
            lists.fullCount_ = static_cast<std::size_t>(full_ - lists.full_.data());
            lists.partialCount_ = static_cast<std::size_t>(partial_ - lists.partial_.data());
        }

      private:
        // Pixels up to `end`, all covered as the last one before them.
        void addEven(int end) {
            full_->begin = reached_;
            full_->end = end;
            // Not a branch, which would often be predicted wrong.
            full_ += static_cast<int>(covered_ == kFullCoverage) & static_cast<int>(reached_ < end);
            if (covered_ % kFullCoverage != 0 && reached_ < end)
                partial_ = listEvenPartial({reached_, end}, covered_, coverage_, partial_);
        }

        int left_;
        int right_;
        int reached_;
        std::uint32_t covered_ = 0; // of the last pixel before `reached_`
        PixelSpan* full_;
        PixelSpan* partial_;
        std::uint32_t* coverage_;
    };

    // Makes room for rows that are seen from pixel `left` up to pixel `right`, with coverage for `columns`
    // pixels, which are whole blocks.
    void reserve(int left, int right, std::size_t columns) {
        left_ = left;
        right_ = right;
        coverage_.resize(columns);
        full_.resize(columns / kCoverageBlock + 2);
        partial_.resize(full_.size());
    }
    // What was written last.
    RowCoverage row() const {
        return {{full_.data(), fullCount_}, {partial_.data(), partialCount_}, coverage_.data()};
    }

  private:
    int left_ = 0;
    int right_ = 0;
    std::size_t fullCount_ = 0;
    std::size_t partialCount_ = 0;
    std::vector<PixelSpan> full_;
    std::vector<PixelSpan> partial_;
    std::vector<std::uint32_t> coverage_;
};

} // namespace easel::paint
