// Composing one pixel in whole numbers, as the inner loops do.
#pragma once

#include <cstdint>

namespace easel::paint::plain {

// What a new color adds to each channel, in 256ths of a level and with its part of the half level that
// rounding needs. Modulo 65536.
struct Parts {
    std::uint32_t blue;
    std::uint32_t green;
    std::uint32_t red;
    std::uint32_t alpha;
};

// The pixel that keeps `rest` of 65536 parts of `below`.
inline std::uint32_t laidOver(const Parts& parts, std::uint32_t below, std::uint32_t rest) {
    const auto channel = [&](unsigned shift, std::uint32_t part) {
        const std::uint32_t kept = ((below >> shift & 0xFF) << 8 | 0x81) * rest >> 16;
        return ((part + kept) >> 8 & 0xFF) << shift;
    };
    return channel(24, parts.alpha) | channel(16, parts.red) | channel(8, parts.green) |
           channel(0, parts.blue);
}

} // namespace easel::paint::plain
