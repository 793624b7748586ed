// Memory put aside, so that what a change of a drawing has begun can be finished or undone when all else is
// used up.
#pragma once

#include <array>
#include <cstddef>
#include <cstdlib>
#include <thread>

namespace easel::drawing {

// At most one at a time. While it exists, the thread that made it is given pieces of the reserve where `new`
// would have to throw; other threads are refused as ever. Drawings begin no change once a piece is given out.
class MemoryReserve {
  public:
    // Where its memory comes from, which `std::free` gives back.
    using Source = void* (*)(std::size_t bytes);

    explicit MemoryReserve(Source source = std::malloc);
    ~MemoryReserve();
    MemoryReserve(const MemoryReserve&) = delete;
    MemoryReserve& operator=(const MemoryReserve&) = delete;

  private:
    friend bool memoryIsLeft();

    static void giveOut();

    Source source_;
    std::thread::id owner_;
    std::array<void*, 8> pieces_{};
};

// Puts aside again what was given out; false if there is not so much memory now. Without a reserve there is
// always enough. For the thread of the reserve.
bool memoryIsLeft();
// Throws std::bad_alloc if it is not.
void demandMemory();

} // namespace easel::drawing
