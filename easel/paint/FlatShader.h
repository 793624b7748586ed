// Paints one color everywhere.
#pragma once

#include "easel/paint/RampSegments.h"
#include "easel/paint/Rasteriser.h"

namespace easel::paint {

class FlatShader : public RowSink {
  public:
    // `color` has one segment and must outlive the shader.
    FlatShader(const SurfaceView& surface, const RampSegments& color, double opacity);
    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    SurfaceView surface_;
    const RampSegment& color_;
    double opacity_;
    std::uint32_t pixel_; // where it hides what is below
};

} // namespace easel::paint
