// Gradients in the host's memory blocks.
#pragma once

#include "host/Gradient.h"
#include "host/Memory.h"

#include <memory>

struct BlockDisposer {
    void operator()(Handle block) const { DisposeHandle(block); }
};

/// A memory block that is disposed of at the end of its scope.
using OwnedBlock = std::unique_ptr<char*, BlockDisposer>;

/// Reads the whole block into `out`. If its bytes are not a gradient, `out` becomes a default record, so that
/// nothing of a half-read one remains.
void ReadGradient(Handle block, CGradientData& out);
