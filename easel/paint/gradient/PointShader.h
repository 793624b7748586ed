// Paints a gradient by evaluating it at each pixel in double precision: for every geometry, but one pixel at
// a time.
#pragma once

#include "easel/paint/coverage/Rasteriser.h"
#include "easel/paint/gradient/ParameterMap.h"

namespace easel::paint {

class PointShader : public RowSink {
  public:
    // The gradient must outlive the shader. `opacity` is from 0 to 1.
    PointShader(const SurfaceView& surface, const drawing::Gradient& gradient, const ParameterMap& map,
                double opacity)
        : surface_(surface), gradient_(gradient), map_(map), opacity_(opacity) {}

    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    drawing::RampColor colorAt(int x, int y) const;

    SurfaceView surface_;
    const drawing::Gradient& gradient_;
    ParameterMap map_;
    double opacity_;
};

} // namespace easel::paint
