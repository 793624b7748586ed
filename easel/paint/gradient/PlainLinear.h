// The inner loops of linear gradients in plain C++, for machines without a known SIMD instruction set: the
// same pixels, one at a time.
#pragma once

#include "easel/paint/gradient/LinearKernels.h"

namespace easel::paint::plain {

// Blue, green and red in 256ths of a level.
struct Levels16 {
    std::uint32_t blue;
    std::uint32_t green;
    std::uint32_t red;
};

// Of a pixel that lies `step` pixels right of another.
inline Levels16 levelsAt(const LinearStretch& stretch, int x, int step) {
    const LinearSteps& steps = *stretch.steps;
    const auto first = [&](std::size_t i) {
        return (stretch.origin[i] + steps.pixel[i] * static_cast<std::uint32_t>(x)) >> 16;
    };
    const auto at = static_cast<std::size_t>(step);
    return {(first(0) + steps.blueRed[at]) & 0xFFFF, (first(1) + steps.green[at]) & 0xFFFF,
            (first(2) + (steps.blueRed[at] >> 16)) & 0xFFFF};
}

inline void fillLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretch) {
    for (const PixelSpan& span : spans) {
        int begin = span.begin; // of the part within a stretch
        for (int x = begin; x < span.end; ++x) {
            for (; stretch->end <= x; ++stretch)
                begin = x;
            const int step = (x - begin) % kBlock;
            const Levels16 color = levelsAt(*stretch, x - step, step);
            row[x] = 0xFF000000 | (color.red >> 8) << 16 | (color.green >> 8) << 8 | color.blue >> 8;
        }
    }
}

// One channel of a pixel. Colors are mixed in 128ths of a level, and half a level more, so that cutting off
// rounds.
inline std::uint32_t mixedLevel(std::uint32_t below, std::uint32_t above256ths, std::int32_t share) {
    const auto from = static_cast<std::int32_t>((below & 0xFF) << 7 | 0x40);
    const std::int32_t change = static_cast<std::int32_t>(above256ths >> 1) - from;
    return static_cast<std::uint32_t>(from - ((change * -share + 0x4000) >> 15)) >> 7;
}

inline void blendLinear(std::uint32_t* row, std::span<const PixelSpan> spans, const LinearStretch* stretch,
                        const std::uint32_t* coverage) {
    for (const PixelSpan& span : spans) {
        for (int x = span.begin; x < span.end; ++x) {
            while (stretch->end <= x)
                ++stretch;
            if (!stretch->steps)
                continue;
            const int step = x % kCoverageBlock;
            const Levels16 color = levelsAt(*stretch, x - step, step);
            const std::uint32_t pixel = row[x];
            const auto share = static_cast<std::int32_t>(coverage[x]);
            row[x] = mixedLevel(pixel >> 24, 0xFF80, share) << 24 |
                     mixedLevel(pixel >> 16, color.red, share) << 16 |
                     mixedLevel(pixel >> 8, color.green, share) << 8 | mixedLevel(pixel, color.blue, share);
        }
    }
}

} // namespace easel::paint::plain
