// Calls of the system that fail when a test says so.
#pragma once

#include <string_view>

namespace tests {

// While it exists, calls of this thread that change files, open them or read from a place in them fail, none
// of them with any effect. Programs that use it compile tests/support/FailingCalls.cpp, which takes the place
// of link, unlink, rename, open, mkdir, pread, write, fsync, syncfs, flock, fchown and fchmod.
class FailingCalls {
  public:
    // The call with this number fails, counted from 1, and no other.
    FailingCalls(int number, int error);
    // All calls of this name fail, and the one with the number among the others.
    FailingCalls(std::string_view name, int error, int number = 0, int errorOfThat = 0);
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;
    ~FailingCalls();

    // Whether there were so many calls that the one with the number came.
    static bool cameToNumber();
};

} // namespace tests
