// Feeds records and patterns to the hash.
#include "easel/runtime/FieldHash.h"

namespace easel::runtime {

std::uint32_t hashOf(const CGradientData& record) {
    FieldHash hash;
    hash.add(static_cast<std::uint64_t>(record.Type()), 4);
    hash.add(record.Angle());
    hash.add(record.Start());
    hash.add(record.End());
    hash.add(record.StartRadius());
    hash.add(record.EndRadius());
    for (const CGradientColor& stop : record.ColorList()) {
        hash.add(stop.ColorRGB());
        hash.add(stop.Percent());
    }
    return hash.value();
}

std::uint32_t hashOf(const std::array<std::uint8_t, 8>& rows) {
    FieldHash hash;
    for (const std::uint8_t row : rows)
        hash.add(row, 1);
    return hash.value();
}

} // namespace easel::runtime
