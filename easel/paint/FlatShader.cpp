// Plain fills.
#include "easel/paint/FlatShader.h"

#include "easel/paint/SegmentWalk.h"

namespace easel::paint {

FlatShader::FlatShader(const SurfaceView& surface, const RampColor& color, double opacity)
    : surface_(surface), color_{color.blue, color.green, color.red, color.opacity * opacity},
      pixel_(opaquePixel(color_)) {}

void FlatShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* pixels = surface_.row(y);
    for (const CoverageRun& run : runs) {
        if (run.coverage == kFullCoverage && color_[3] == 1)
            std::fill(pixels + run.begin, pixels + run.end, pixel_);
        else
            blendPixels(pixels + run.begin, run.end - run.begin, color_, {},
                        run.coverage / double{kFullCoverage});
    }
}

} // namespace easel::paint
