// Implements host/Memory.h.
#include "host/Memory.h"

#include "easel/runtime/Process.h"

using easel::runtime::process;

Handle NewHandle(long size) {
    return size < 0 ? nullptr : process().blocks().create(static_cast<std::size_t>(size));
}

void DisposeHandle(Handle block) {
    if (block)
        process().blocks().dispose(block);
}

long GetHandleSize(Handle block) {
    return block ? static_cast<long>(process().blocks().size(block).value_or(0)) : 0;
}

bool SetHandleSize(Handle block, long size) {
    return size >= 0 && process().blocks().resize(block, static_cast<std::size_t>(size));
}

void HLock(Handle block) {
    if (block)
        process().blocks().lock(block);
}

void HUnlock(Handle block) {
    if (block)
        process().blocks().unlock(block);
}
