// Paints linear gradients: each row is cut where the ramp reaches a stop, and each piece is an arithmetic
// progression.
#pragma once

#include "easel/paint/ParameterMap.h"
#include "easel/paint/PixelKernels.h"
#include "easel/paint/RampSegments.h"
#include "easel/paint/Rasteriser.h"

#include <vector>

namespace easel::paint {

class LinearShader : public RowSink {
  public:
    // `segments` covers the parameters of every pixel that will be painted. `steps` is scratch memory; both
    // must outlive the shader.
    LinearShader(const SurfaceView& surface, const LinearMap& map, const RampSegments& segments,
                 double opacity, std::vector<LinearSteps>& steps);
    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    class Track;

    double slopeOf(const RampSegment& segment, std::size_t channel) const;
    LinearSteps stepsOf(const RampSegment& segment) const;
    void paintOpaque(std::uint32_t* pixels, int count, int room, std::size_t index, double parameter) const;

    SurfaceView surface_;
    LinearMap map_;
    const RampSegments& segments_;
    double opacity_;
    double perPixel_; // change of the parameter from a pixel to its right neighbor
    std::vector<LinearSteps>& steps_;
};

} // namespace easel::paint
