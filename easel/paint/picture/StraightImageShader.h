// Paints an image whose sides lie along those of the surface.
#pragma once

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/picture/AxisTaps.h"
#include "easel/paint/picture/Image.h"
#include "easel/paint/picture/MixedColor.h"
#include "easel/paint/pixels/Surface.h"

#include <vector>

namespace easel::paint {

class StraightImageShader : public RowSink {
  public:
    // `toImage` maps surface to image and turns nothing. `area` is all that will be painted. The image's
    // pixels must outlive the shader.
    StraightImageShader(const SurfaceView& surface, const PixelRect& area, const Image& image,
                        const drawing::Affine& toImage, double opacity);

    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    void mixColumns(std::span<const Tap> rows);

    SurfaceView surface_;
    Image image_;
    double opacity_;
    AxisTaps across_;
    AxisTaps down_;
    int onlyRow_ = -1;                // of the image, if `columns_` holds it unmixed
    std::vector<MixedColor> columns_; // of the image, mixed for the present row, from the lowest on
};

} // namespace easel::paint
