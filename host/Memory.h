// Relocatable memory blocks, which the host hands out by handle.
#pragma once

#pragma GCC visibility push(default)

/// A handle: a pointer to the pointer to a block's first byte. The block may move whenever its size changes,
/// unless it is locked. The bytes of a block are aligned for any type.
using Handle = char**;

/// A new block of `size` bytes, all zero; null if there is no memory. The caller disposes of it.
[[nodiscard]] Handle NewHandle(long size);
/// Frees a block. Null is allowed; a block is disposed of once.
void DisposeHandle(Handle block);
/// Size of a block in bytes; 0 for null.
[[nodiscard]] long GetHandleSize(Handle block);
/// Changes a block's size, keeping the bytes that fit; new bytes are zero. False, and no change, if there is
/// no memory.
bool SetHandleSize(Handle block, long size);
/// Keeps a block where it is until HUnlock. Locks do not nest. Null is allowed.
void HLock(Handle block);
/// Allows a block to move again. Null is allowed.
void HUnlock(Handle block);

#pragma GCC visibility pop
