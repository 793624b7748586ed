// Walks the runs of a row and the segments of a ramp side by side, and paints what both agree on.
#pragma once

#include "easel/paint/PixelKernels.h"
#include "easel/paint/RampSegments.h"
#include "easel/paint/Rasteriser.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace easel::paint {

// Track tells which segment a row is in: `enter(x)` finds the segment of a first pixel, `end()` is the first
// pixel after the present segment, and `next()` goes on to the segment that begins there, which may be empty.
// `paint(begin, end, run)` paints pixels of one run in the present segment.
template <class Track, class Paint>
void walkSegments(std::span<const CoverageRun> runs, Track& track, const Paint& paint) {
    track.enter(runs.front().begin);
    for (const CoverageRun& run : runs) {
        for (int x = run.begin; x < run.end;) {
            while (track.end() <= x)
                track.next();
            const int end = std::min(run.end, track.end());
            paint(x, end, run);
            x = end;
        }
    }
}

// Whether a segment hides what is below it wherever a shape covers the pixel fully.
enum class Hiding { Full, Partial };

inline Hiding hidingOf(const RampSegment& segment, const CoverageRun& run, double opacity) {
    return run.coverage == kFullCoverage && opacity == 1 && segment.opaque() ? Hiding::Full : Hiding::Partial;
}

// The nearest whole number, for values far from the ends of the type.
inline std::int64_t nearest(double value) {
    return static_cast<std::int64_t>(value + (value < 0 ? -0.5 : 0.5));
}

// Without opacity: the pixel is opaque.
inline std::uint32_t opaquePixel(const Channels& color) {
    const auto level = [&](std::size_t i) { return static_cast<std::uint32_t>(std::nearbyint(color[i])); };
    return 0xFF000000 | level(2) << 16 | level(1) << 8 | level(0);
}

// Lays colors that change by `step` from pixel to pixel over what is there, each with its own opacity times
// `share`.
inline void blendPixels(std::uint32_t* pixels, int count, const Channels& color, const Channels& step,
                        double share) {
    const auto narrow = [](double value) { return static_cast<float>(value); };
    blendLinear(pixels, count,
                {{narrow(color[0]), narrow(color[1]), narrow(color[2]), 255},
                 {narrow(step[0]), narrow(step[1]), narrow(step[2]), 0},
                 narrow(color[3] * share),
                 narrow(step[3] * share)});
}

} // namespace easel::paint
