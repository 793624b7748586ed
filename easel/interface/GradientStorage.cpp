// Implements the storing of gradients that host/Gradient.h declares.
#include "easel/classic/GradientBytes.h"
#include "easel/classic/MemoryBlocks.h"
#include "easel/interface/Journal.h"

#include <algorithm>

using namespace easel;

Handle MakeGradientData(CGradientData const& data) {
    host::journal("MakeGradientData");
    const auto bytes = classic::gradientToBytes(data);
    if (!bytes)
        return nullptr;
    Handle const block = classic::MemoryBlocks::shared().create(bytes->size());
    if (block)
        std::copy(bytes->begin(), bytes->end(), *block);
    return block;
}

bool ExtractGradientInfo(char* bytes, long size, CGradientData& out) {
    host::journal("ExtractGradientInfo", size);
    if (!bytes || size < 0)
        return false;
    auto read = classic::gradientFromBytes(
        {reinterpret_cast<const std::uint8_t*>(bytes), static_cast<std::size_t>(size)});
    if (const auto* const gradient = std::get_if<CGradientData>(&read)) {
        out = *gradient;
        return true;
    }
    return false;
}
