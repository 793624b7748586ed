// Implements host/Memory.h.
#include "host/Memory.h"

#include "easel/runtime/MemoryBlocks.h"

using easel::runtime::MemoryBlocks;

Handle NewHandle(long size) {
    return size < 0 ? nullptr : MemoryBlocks::shared().create(static_cast<std::size_t>(size));
}

void DisposeHandle(Handle block) {
    if (block)
        MemoryBlocks::shared().dispose(block);
}

long GetHandleSize(Handle block) {
    return block ? static_cast<long>(MemoryBlocks::shared().size(block).value_or(0)) : 0;
}

bool SetHandleSize(Handle block, long size) {
    return size >= 0 && MemoryBlocks::shared().resize(block, static_cast<std::size_t>(size));
}

void HLock(Handle block) {
    if (block)
        MemoryBlocks::shared().lock(block);
}

void HUnlock(Handle block) {
    if (block)
        MemoryBlocks::shared().unlock(block);
}
