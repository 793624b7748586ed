// Paints one color everywhere.
#pragma once

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/gradient/LinearPiece.h"
#include "easel/paint/gradient/RampSegments.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

class FlatShader : public CoverageSink {
  public:
    // `color` has one segment and must outlive the shader.
    FlatShader(const SurfaceView& surface, const RampSegments& color, double opacity);
    void row(int y, const RowCoverage& coverage) override;

  private:
    void mix(std::uint32_t* row, const RowCoverage& coverage) const;

    SurfaceView surface_;
    const RampSegment& color_;
    double opacity_;
    LinearPiece piece_; // where it hides what is below
};

} // namespace easel::paint
