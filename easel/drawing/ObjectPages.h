// The objects of a drawing by their slots, in pages that copies share until one of them changes.
#pragma once

#include "easel/drawing/Object.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace easel::drawing {

// Names one entry of a display list for as long as the drawing lives: never given to another entry.
using Slot = std::uint32_t;

// Copying takes time in proportion to the pages. Copies are made, changed and destroyed on one thread; others
// may read them meanwhile.
class ObjectPages {
  public:
    std::size_t size() const { return size_; }
    // slot < size()
    const ObjectPtr& operator[](Slot slot) const { return (*pages_[slot / kPageSize])[slot % kPageSize]; }
    // One more slot, with a null object.
    void add();
    // The object that was there.
    ObjectPtr replace(Slot slot, ObjectPtr object);

  private:
    static constexpr std::size_t kPageSize = 256;
    using Page = std::array<ObjectPtr, kPageSize>;

    std::vector<std::shared_ptr<Page>> pages_;
    std::size_t size_ = 0;
};

} // namespace easel::drawing
