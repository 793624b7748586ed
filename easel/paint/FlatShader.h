// Paints one color everywhere.
#pragma once

#include "easel/paint/RampSegments.h"
#include "easel/paint/Rasteriser.h"

namespace easel::paint {

class FlatShader : public RowSink {
  public:
    FlatShader(const SurfaceView& surface, const RampColor& color, double opacity);
    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    SurfaceView surface_;
    Channels color_;
    std::uint32_t pixel_; // where it hides what is below
};

} // namespace easel::paint
