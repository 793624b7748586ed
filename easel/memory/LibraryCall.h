// Calls of libraries that end the program where they find no memory, or go on as if nothing were missing.
#pragma once

#include "easel/memory/Refusals.h"

#include <new>
#include <utility>

namespace easel::memory {

// While it exists, the thread that made it may use the reserve of memory.
class LibraryCall {
  public:
    LibraryCall() noexcept;
    ~LibraryCall();
    LibraryCall(const LibraryCall&) = delete;
    LibraryCall& operator=(const LibraryCall&) = delete;

    // Throws std::bad_alloc if memory was refused to anybody since the call began: what the library has made
    // may lack something then.
    void check() const {
        if (refusals() != refusalsBefore_)
            throw std::bad_alloc();
    }

    static bool isUnderWayOnThisThread() noexcept;
    // Libraries have threads of their own.
    static bool isUnderWay() noexcept;

  private:
    std::size_t refusalsBefore_;
};

// What `call` gives, which calls a library. Throws std::bad_alloc where memory ended meanwhile.
template <class Call> auto complete(Call&& call) {
    const LibraryCall inLibrary;
    auto result = std::forward<Call>(call)();
    inLibrary.check();
    return result;
}

} // namespace easel::memory
