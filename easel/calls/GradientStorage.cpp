// Implements the storing of gradients that host/Gradient.h declares.
#include "easel/classic/GradientBytes.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/MemoryBlocks.h"

#include <algorithm>

using namespace easel;

Handle MakeGradientData(CGradientData const& data) {
    runtime::journal("MakeGradientData");
    const auto bytes = classic::gradientToBytes(data);
    if (!bytes)
        return nullptr;
    Handle const block = runtime::MemoryBlocks::shared().create(bytes->size());
    if (block)
        std::copy(bytes->begin(), bytes->end(), *block);
    return block;
}

bool ExtractGradientInfo(char* bytes, long size, CGradientData& out) {
    runtime::journal("ExtractGradientInfo", size);
    if (!bytes || size < 0)
        return false;
    const auto gradient = classic::gradientFromBytes(
        {reinterpret_cast<const std::uint8_t*>(bytes), static_cast<std::size_t>(size)});
    if (gradient)
        out = *gradient;
    return gradient.has_value();
}
