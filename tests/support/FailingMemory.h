// Memory that runs out when a test says so, and that can be counted.
#pragma once

// While it exists, the allocations of this program succeed `allowed` times and then throw std::bad_alloc.
class FailingMemory {
  public:
    explicit FailingMemory(int allowed);
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();

    // Number of blocks allocated with `new` and not freed.
    static long LiveBlocks();
};
