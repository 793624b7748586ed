// The elements of a drawing's objects, in a few bytes each: most follow closely on the one before.
#pragma once

#include "easel/drawing/Object.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace easel::svg {

class PackedSpans {
  public:
    void add(const drawing::ElementSpan& span);
    void shrinkToFit() { bytes_.shrink_to_fit(); }
    // All of them, in the order in which they were added.
    std::vector<drawing::ElementSpan> all() const;

  private:
    void put(std::uint32_t number);

    // Of each the way from the end of the one before, its length, and the step to its use instance, seven
    // bits of a number to a byte. What may be negative has its sign in the lowest bit.
    std::vector<std::uint8_t> bytes_;
    std::size_t count_ = 0;
    drawing::ElementSpan last_;
};

} // namespace easel::svg
