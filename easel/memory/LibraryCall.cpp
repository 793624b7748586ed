#include "easel/memory/LibraryCall.h"

#include <atomic>

namespace easel::memory {

namespace {

// Calls may lie within each other.
thread_local int gCallsOnThisThread = 0;
std::atomic<int> gCalls = 0;

} // namespace

LibraryCall::LibraryCall() noexcept : refusalsBefore_(refusals()) {
    ++gCallsOnThisThread;
    ++gCalls;
}

LibraryCall::~LibraryCall() {
    --gCallsOnThisThread;
    --gCalls;
}

bool LibraryCall::isUnderWayOnThisThread() noexcept {
    return gCallsOnThisThread > 0;
}

bool LibraryCall::isUnderWay() noexcept {
    return gCalls > 0;
}

} // namespace easel::memory
