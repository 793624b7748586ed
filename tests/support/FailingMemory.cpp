// Memory that runs out when a test says so, and that can be counted.
#include "tests/support/FailingMemory.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int kUnlimited = -1;
int gAllowed = kUnlimited;
long gLiveBlocks = 0;

void Free(void* block) noexcept {
    if (block != nullptr) {
        --gLiveBlocks;
        std::free(block);
    }
}

} // namespace

FailingMemory::FailingMemory(int allowed) {
    gAllowed = allowed;
}
FailingMemory::~FailingMemory() {
    gAllowed = kUnlimited;
}
long FailingMemory::LiveBlocks() {
    return gLiveBlocks;
}

void* operator new(std::size_t size) {
    if (gAllowed == 0) {
        throw std::bad_alloc();
    }
    if (gAllowed > 0) {
        --gAllowed;
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    ++gLiveBlocks;
    return block;
}

// Memory resources ask for alignment, though for none that every block does not have.
void* operator new(std::size_t size, std::align_val_t /*alignment*/) {
    return operator new(size);
}

void operator delete(void* block) noexcept {
    Free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept {
    Free(block);
}
void operator delete(void* block, std::align_val_t /*alignment*/) noexcept {
    Free(block);
}
void operator delete(void* block, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    Free(block);
}
