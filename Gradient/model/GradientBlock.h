// Gradients in the host's memory blocks.
#pragma once

#include "host/Gradient.h"
#include "host/Memory.h"

#include <memory>

/// How a memory block is given back.
struct CBlockDisposer {
    void operator()(Handle block) const { DisposeHandle(block); }
};

/// A memory block that is disposed of at the end of its scope.
using StOwnedBlock = std::unique_ptr<char*, CBlockDisposer>;

/// Reads the whole block into `out`. If its bytes are not a gradient, `out` becomes a default record, so that
/// nothing of a half-read one remains.
void ReadGradient(Handle block, CGradientData& out);
