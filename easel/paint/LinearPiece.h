// One segment of a ramp prepared for all rows of a linear gradient.
#pragma once

#include "easel/paint/PixelKernels.h"
#include "easel/paint/RampSegments.h"

namespace easel::paint {

class LinearPiece {
  public:
    // `perPixel` is the change of the parameter from a pixel to its right neighbor.
    LinearPiece(const RampSegment& segment, double perPixel);

    // Opaque pixels, the first of them with the given parameter; see fillLinear.
    void paint(std::uint32_t* pixels, int count, int room, double parameter) const;

  private:
    double anchor_;
    double reach_;
    std::array<double, 3> start_; // a LinearStart at the anchor, not yet rounded
    std::array<double, 3> slope_; // its change per unit of the parameter
    bool flat_;
    LinearSteps steps_;
};

} // namespace easel::paint
