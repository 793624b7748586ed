// One color span of a ramp with opacity prepared for all rows of a linear gradient.
#pragma once

#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/gradient/LinearMixKernels.h"
#include "easel/paint/gradient/LinearPiece.h"

namespace easel::paint {

class LinearMixPiece {
  public:
    // `color` is the same color span without opacity and must outlive the piece. `perPixel` is the change of
    // the parameter from a pixel to its right neighbor; `opacity` multiplies that of the color span.
    LinearMixPiece(const ColorSpan& colorSpan, const LinearPiece& color, double perPixel, double opacity);

    // As LinearPiece does it.
    void layOut(int x, int end, double parameter, LinearMixStretch& stretch) const;

  private:
    const LinearPiece* color_;
    double anchor_;
    double reach_;
    double start_; // weight at the anchor, not yet rounded
    double slope_; // its change per unit of the parameter
    LinearMixSteps steps_;
};

} // namespace easel::paint
