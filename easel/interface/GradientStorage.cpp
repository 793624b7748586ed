// Implements the storing of gradients that host/Gradient.h declares.
#include "easel/interface/Journal.h"
#include "easel/toolbox/GradientBytes.h"
#include "easel/toolbox/MemoryBlocks.h"

#include <algorithm>

using namespace easel;

Handle MakeGradientData(CGradientData const& data) {
    host::journal("MakeGradientData");
    const auto bytes = toolbox::gradientToBytes(data);
    if (!bytes)
        return nullptr;
    Handle const block = toolbox::MemoryBlocks::shared().create(bytes->size());
    if (block)
        std::copy(bytes->begin(), bytes->end(), *block);
    return block;
}

bool ExtractGradientInfo(char* bytes, long size, CGradientData& out) {
    host::journal("ExtractGradientInfo", size);
    if (!bytes || size < 0)
        return false;
    auto read = toolbox::gradientFromBytes(
        {reinterpret_cast<const std::uint8_t*>(bytes), static_cast<std::size_t>(size)});
    if (const auto* const gradient = std::get_if<CGradientData>(&read)) {
        out = *gradient;
        return true;
    }
    return false;
}
