// Plain fills.
#include "easel/paint/gradient/FlatShader.h"

#include "easel/paint/gradient/RunWalk.h"

namespace easel::paint {

FlatShader::FlatShader(const SurfaceView& surface, const ColorSpans& color, double opacity)
    : surface_(surface), color_(color.all().front()), opacity_(opacity), piece_(color_, 0) {}

void FlatShader::row(int y, const RowCoverage& coverage) {
    std::uint32_t* row = surface_.row(y);
    if (opacity_ != 1 || !color_.opaque())
        return mix(row, coverage);
    LinearStretch everywhere;
    piece_.layOut(0, coverage.extent().end, color_.anchor, everywhere);
    fillLinear(row, coverage.full, &everywhere);
    blendLinear(row, coverage.partial, &everywhere, coverage.coverage);
}

// What is below shows through everywhere.
void FlatShader::mix(std::uint32_t* row, const RowCoverage& coverage) const {
    BlendQueue queue(row);
    const auto add = [&](int x, std::uint32_t covered) {
        queue.add(color_, x, color_.anchor, shareOf(covered, opacity_));
    };
    for (const PixelSpan& span : coverage.full)
        for (int x = span.begin; x < span.end; ++x)
            add(x, kFullCoverage);
    for (const PixelSpan& span : coverage.partial)
        for (int x = span.begin; x < span.end; ++x)
            add(x, coverage.coverage[x]);
    queue.flush(color_);
}

} // namespace easel::paint
