// Arrays held in a memory block.
#pragma once

#include "host/Memory.h"

/// Index of the last element of an array of T that fills a block; bytes left over do not count. -1 for an
/// empty array and for null.
template <typename T> [[nodiscard]] long LastDAIndex(T** block) {
    if (block == nullptr) {
        return -1;
    }
    auto const size = static_cast<unsigned long>(GetHandleSize(reinterpret_cast<Handle>(block)));
    return static_cast<long>(size / sizeof(T)) - 1;
}
