// Paints linear gradients: each row is cut where the ramp reaches a stop, and each piece is an arithmetic
// progression.
#pragma once

#include "easel/paint/LinearPiece.h"
#include "easel/paint/ParameterMap.h"
#include "easel/paint/RampSegments.h"
#include "easel/paint/Rasteriser.h"

#include <vector>

namespace easel::paint {

class LinearShader : public RowSink {
  public:
    // `segments` covers the parameters of every pixel that will be painted. `pieces` is scratch memory; both
    // must outlive the shader.
    LinearShader(const SurfaceView& surface, const LinearMap& map, const RampSegments& segments,
                 double opacity, std::vector<LinearPiece>& pieces);
    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    class Track;

    SurfaceView surface_;
    LinearMap map_;
    const RampSegments& segments_;
    double opacity_;
    double perPixel_; // change of the parameter from a pixel to its right neighbor
    std::vector<LinearPiece>& pieces_;
};

} // namespace easel::paint
