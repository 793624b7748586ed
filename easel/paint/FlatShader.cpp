// Plain fills.
#include "easel/paint/FlatShader.h"

#include "easel/paint/SegmentWalk.h"

namespace easel::paint {

FlatShader::FlatShader(const SurfaceView& surface, const RampSegments& color, double opacity)
    : surface_(surface), color_(color.all().front()), opacity_(opacity), pixel_(opaquePixel(color_.color)) {}

void FlatShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* pixels = surface_.row(y);
    BlendQueue queue(pixels);
    for (const CoverageRun& run : runs) {
        if (hidingOf(color_, run, opacity_) == Hiding::Full) {
            std::fill(pixels + run.begin, pixels + run.end, pixel_);
            continue;
        }
        for (int x = run.begin; x < run.end; ++x)
            queue.add(color_, x, color_.anchor, shareOf(run, opacity_));
    }
    queue.flush(color_);
}

} // namespace easel::paint
