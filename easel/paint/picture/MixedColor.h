// Sums of weighted pixels, and laying one over a pixel.
#pragma once

#include "easel/paint/coverage/Coverage.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace easel::paint {

// Blue, green, red and alpha of a premultiplied color, in levels.
struct MixedColor {
    std::array<float, 4> channels{};

    void add(std::uint32_t pixel, float weight) {
        for (std::size_t c = 0; c < 4; ++c)
            channels[c] += weight * static_cast<float>(pixel >> 8 * c & 0xFF);
    }
    void add(const MixedColor& color, float weight) {
        for (std::size_t c = 0; c < 4; ++c)
            channels[c] += weight * color.channels[c];
    }
    std::uint32_t pixel() const { return over(0, 1); }
    // The pixel after the color was laid over it with that share, 0 to 1.
    std::uint32_t over(std::uint32_t below, float share) const {
        const float kept = 1 - channels[3] / 255 * share;
        std::uint32_t result = 0;
        for (std::size_t c = 0; c < 4; ++c) {
            const float old = static_cast<float>(below >> 8 * c & 0xFF);
            // Never below 0, and cutting off costs less than rounding.
            // NOLINTNEXTLINE(bugprone-incorrect-roundings)
            const auto level = static_cast<std::uint32_t>(channels[c] * share + old * kept + 0.5F);
            result |= (level < 255 ? level : 255) << 8 * c;
        }
        return result;
    }
};

} // namespace easel::paint
