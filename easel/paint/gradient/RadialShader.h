// Paints radial gradients whose start circle lies inside the end circle: along a row the parameter falls to a
// lowest value and then rises, and each piece between stops is one square root and one multiply-add a
// channel.
#pragma once

#include "easel/paint/coverage/Rasteriser.h"
#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/gradient/ParameterMap.h"
#include "easel/paint/gradient/RadialPiece.h"

namespace easel::paint {

class RadialShader : public RowSink {
  public:
    // Whether the shader knows the geometry; others need evaluation pixel by pixel.
    static bool handles(const RadialMap& map);

    // `colorSpans` covers the parameters of every pixel that will be painted. `pieces` is scratch memory;
    // both must outlive the shader.
    RadialShader(const SurfaceView& surface, const RadialMap& map, const ColorSpans& colorSpans,
                 double opacity, std::vector<RadialPiece>& pieces);
    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    class Track;

    SurfaceView surface_;
    RadialMap map_;
    RadialRows rows_;
    const ColorSpans& colorSpans_;
    double opacity_;
    // Nothing shows through, so that what lies beyond a piece may be written over.
    bool hides_ = true;
    std::vector<RadialPiece>& pieces_;
};

} // namespace easel::paint
