// Which blocks of a row's columns hold changes of coverage.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace easel::paint {

// Goes through the blocks from `begin` on that have a byte of 1, eight bytes at a time.
class TouchedBlocks {
  public:
    static constexpr std::size_t kInWord = 8;

    // `begin` and `end` are multiples of kInWord.
    TouchedBlocks(const std::uint8_t* touched, std::size_t begin, std::size_t end)
        : touched_(touched), word_(begin), end_(end), rest_(wordAt(begin)) {}

    // Goes on to the next; false after the last.
    bool next() {
        while (rest_ == 0) {
            word_ += kInWord;
            if (word_ >= end_)
                return false;
            rest_ = wordAt(word_);
        }
        block_ = word_ + static_cast<std::size_t>(std::countr_zero(rest_)) / 8;
        rest_ &= rest_ - 1;
        return true;
    }
    std::size_t block() const { return block_; }

  private:
    static_assert(std::endian::native == std::endian::little, "the lowest byte of a word is the first");

    std::uint64_t wordAt(std::size_t block) const {
        std::uint64_t word;
        std::memcpy(&word, touched_ + block, sizeof word);
        return word;
    }

    const std::uint8_t* touched_;
    std::size_t word_;
    std::size_t end_;
    std::size_t block_ = 0;
    std::uint64_t rest_;
};

} // namespace easel::paint
