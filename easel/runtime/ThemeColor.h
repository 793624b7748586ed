// The colors of a desktop theme as ports take them.
#pragma once

#include "easel/paint/Port.h"

#include <cstdint>

namespace easel::runtime {

// From 0xRRGGBB; each level becomes the 16-bit channel that is shown as exactly that level.
inline drawing::Rgb16 portColorOf(std::uint32_t rgb) {
    const auto channel = [rgb](int shift) { return static_cast<std::uint16_t>((rgb >> shift & 0xff) * 257); };
    return {channel(16), channel(8), channel(0)};
}

} // namespace easel::runtime
