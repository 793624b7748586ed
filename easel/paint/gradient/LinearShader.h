// Paints linear gradients: each row is cut where the ramp reaches a stop, and each piece is an arithmetic
// progression.
#pragma once

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/gradient/LinearMixPiece.h"
#include "easel/paint/gradient/LinearPiece.h"
#include "easel/paint/gradient/ParameterMap.h"
#include "easel/paint/pixels/Surface.h"

#include <vector>

namespace easel::paint {

// Memory that is kept from one shader to the next.
struct LinearScratch {
    std::vector<LinearPiece> pieces;
    std::vector<LinearStretch> stretches;
    // Empty unless something shows through.
    std::vector<LinearMixPiece> mixPieces;
    std::vector<LinearMixStretch> mixed;
};

class LinearShader : public CoverageSink {
  public:
    // `colorSpans` covers the parameters of every pixel that will be painted; it and `scratch` must outlive
    // the shader.
    LinearShader(const SurfaceView& surface, const LinearMap& map, const ColorSpans& colorSpans,
                 double opacity, LinearScratch& scratch);
    void row(int y, const RowCoverage& coverage) override;

  private:
    class Track;

    bool hides(const ColorSpan& colorSpan) const;
    void layOut(Track& track, const PixelSpan& extent);
    void layOutMixed(Track& track, int x, int end, LinearStretch& stretch);
    void blendMixed(std::uint32_t* pixels, const RowCoverage& coverage, Track& track) const;

    SurfaceView surface_;
    LinearMap map_;
    const ColorSpans& colorSpans_;
    double opacity_;
    double perPixel_; // change of the parameter from a pixel to its right neighbor
    double perRow_;   // and to the one below
    double origin_;   // the parameter at the centre of pixel (0, 0)
    double pixelsPerUnit_;
    std::size_t firstPlace_ = 0; // where the row before began
    // Whether there are color spans that hide what is below, and others.
    bool anyHides_ = false;
    bool anyMixes_ = false;
    std::vector<LinearPiece>& pieces_;       // of the color spans
    std::vector<LinearMixPiece>& mixPieces_; // of the color spans
    // Of the present row. If something shows through, the first ones have only what hides what is below.
    std::vector<LinearStretch>& stretches_;
    std::vector<LinearMixStretch>& mixed_;
};

} // namespace easel::paint
