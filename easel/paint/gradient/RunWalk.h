// Walks the runs of a row and the color spans of a ramp side by side, and paints what both agree on.
#pragma once

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/pixels/PixelKernels.h"
#include "easel/paint/pixels/Surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace easel::paint {

// Track tells which color span a row is in: `enter(x)` finds the color span of a first pixel, `end()` is the
// first pixel after the present color span, and `next()` goes on to the color span that begins there, which
// may be empty. `paint(begin, end, run)` paints pixels of one run in the present color span, and `leave()` is
// called at its end.
template <class Run, class Track, class Paint, class Leave>
void walkRuns(std::span<const Run> runs, Track& track, const Paint& paint, const Leave& leave) {
    track.enter(runs.front().begin);
    for (const Run& run : runs) {
        for (int x = run.begin; x < run.end;) {
            if (track.end() <= x) {
                leave();
                do
                    track.next();
                while (track.end() <= x);
            }
            const int end = std::min(run.end, track.end());
            paint(x, end, run);
            x = end;
        }
    }
    leave();
}

// Beyond every pixel.
constexpr int kEndless = std::numeric_limits<int>::max();

// The first pixel that lies beyond a place between pixels. Where the color jumps there, rounding of the place
// must not decide, and `beyond(x)` tells of a pixel near it on which side it is.
template <class Beyond> int firstPixelBeyond(double place, bool sharp, const Beyond& beyond) {
    const int whole = static_cast<int>(place);
    const int near = whole + (place > whole ? 1 : 0);
    if (!sharp)
        return near;
    if (beyond(near - 1))
        return near - 1;
    return beyond(near) ? near : near + 1;
}

inline float shareOf(std::uint32_t coverage, double opacity) {
    return static_cast<float>(coverage * (opacity / kFullCoverage));
}
inline float shareOf(const CoverageRun& run, double opacity) {
    return shareOf(static_cast<std::uint32_t>(run.coverage), opacity);
}

// From a pixel to the one below it, which is the next to be painted; 0 in the last row. Opacity has to read
// what is there, and where it leaves out parts of rows, the processor does not know in advance which memory
// comes next: so that is fetched a row early.
inline std::ptrdiff_t toNextRow(const SurfaceView& surface, int y) {
    return y + 1 < surface.clip().bottom ? surface.stride() / kBytesPerPixel : 0;
}

// Collects the pixels of a color span that have to be blended, so that they are handed over many at a time.
class BlendQueue {
  public:
    explicit BlendQueue(std::uint32_t* row) : row_(row) {}

    void add(const ColorSpan& colorSpan, int x, double parameter, float share) {
        if (count_ == points_.size())
            flush(colorSpan);
        points_[count_++] = {x, static_cast<float>(colorSpan.distanceTo(parameter)), share};
    }
    void flush(const ColorSpan& colorSpan) {
        if (count_ > 0)
            blendPoints(row_, colorSpan.blend, {points_.data(), count_});
        count_ = 0;
    }

  private:
    std::uint32_t* row_;
    std::size_t count_ = 0;
    std::array<BlendPoint, 64> points_;
};

} // namespace easel::paint
