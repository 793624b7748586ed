// Paints an image that is turned or slanted, pixel by pixel.
#pragma once

#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/picture/Image.h"
#include "easel/paint/picture/MixedColor.h"
#include "easel/paint/pixels/Surface.h"

#include <vector>

namespace easel::paint {

class TurnedImageShader : public RowSink {
  public:
    // `toImage` maps surface to image. `area` is all that will be painted. The image's pixels must outlive
    // the shader.
    TurnedImageShader(const SurfaceView& surface, const PixelRect& area, const Image& image,
                      const drawing::Affine& toImage, double opacity);

    void row(int y, std::span<const CoverageRun> runs) override;

  private:
    // A stretch of the image along one axis: blocks of so many pixels, each of which becomes one.
    struct Blocks {
        int begin = 0;
        int end = 0;
        int side = 1;
    };
    static Blocks blocksWithin(double low, double high, double perPixel, int size, bool repeats);
    void shrink(const Blocks& across, const Blocks& down);
    MixedColor colorAt(drawing::Point place) const;
    std::uint32_t pixelAt(double x, double y) const;

    SurfaceView surface_;
    Image image_; // what is painted: the one given, or `shrunk_`
    drawing::Affine toImage_;
    double opacity_;
    std::vector<std::uint32_t> shrunk_;
};

} // namespace easel::paint
