// Paints one color everywhere.
#pragma once

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/gradient/LinearPiece.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

class FlatShader : public CoverageSink {
  public:
    // `color` has one color span and must outlive the shader.
    FlatShader(const SurfaceView& surface, const ColorSpans& color, double opacity);
    void row(int y, const RowCoverage& coverage) override;

  private:
    void mix(std::uint32_t* row, const RowCoverage& coverage) const;

    SurfaceView surface_;
    const ColorSpan& color_;
    double opacity_;
    LinearPiece piece_; // where it hides what is below
};

} // namespace easel::paint
