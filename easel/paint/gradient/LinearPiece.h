// One color span of a ramp prepared for all rows of a linear gradient.
#pragma once

#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/gradient/LinearKernels.h"

namespace easel::paint {

class LinearPiece {
  public:
    // `perPixel` is the change of the parameter from a pixel to its right neighbor.
    LinearPiece(const ColorSpan& colorSpan, double perPixel);

    // The pixels from x to `end` of a row, the first of them with the given parameter. Written in place,
    // since a copy of what has just been written is slow.
    void layOut(int x, int end, double parameter, LinearStretch& stretch) const {
        stretch.end = end;
        stretch.steps = &steps_;
        layOut(x, parameter, stretch.origin.data());
    }
    // Only the three levels of the row's pixel 0.
    void layOut(int x, double parameter, std::uint32_t* origin) const;
    const LinearSteps& steps() const { return steps_; }

  private:
    double anchor_;
    double reach_;
    std::array<double, 3> start_; // the levels at the anchor, not yet rounded
    std::array<double, 3> slope_; // their change per unit of the parameter
    LinearSteps steps_;
};

} // namespace easel::paint
