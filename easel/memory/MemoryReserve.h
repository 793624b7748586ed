// Memory put aside, so that what a change of a drawing or a library has begun can be finished or undone when
// all else is used up.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <thread>

namespace easel::memory {

// At most one at a time. While it exists, the thread that made it is given pieces of the reserve where `new`
// would have to throw, and so is a thread that is in a library (LibraryCall.h). Others, among which are
// threads that the libraries of the desktop have of their own, may have half of it. Drawings begin no change
// once a piece is given out.
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
    std::size_t share() const;

    Source source_;
    std::thread::id owner_;
    std::array<std::atomic<void*>, 8> pieces_{};
};

// Puts aside again what was given out; false if there is not so much memory now. Without a reserve there is
// always enough. For the thread of the reserve.
bool memoryIsLeft();
// Throws std::bad_alloc if it is not.
void demandMemory();

} // namespace easel::memory
