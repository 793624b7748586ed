// A sheet of pixels laid over a part of a surface: painted apart, then clipped, made fainter and laid on as
// one.
#pragma once

#include "easel/drawing/BlendMode.h"
#include "easel/drawing/Geometry.h"
#include "easel/drawing/Mask.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// The pixels that the box touches after the map, within `limit`. A box that is not finite gives the whole
// limit.
PixelRect pixelsUnder(const drawing::Box& box, const drawing::Affine& toSurface, const PixelRect& limit);

class Layer {
  public:
    // Transparent; `place` is the part of the surface below that the layer covers, not empty.
    explicit Layer(const PixelRect& place);

    // The layer's pixels, and the map to them in place of one to the surface below.
    SurfaceView view() { return pixels_.view(); }
    const Surface& pixels() const { return pixels_; }
    drawing::Affine mapped(const drawing::Affine& toSurface) const;
    const PixelRect& place() const { return place_; }

    // Multiplies each pixel by the alpha of the mask's pixel; both layers cover the same place.
    void maskWith(const Layer& mask);
    // The same with what `measure` finds of the mask's pixel.
    void maskWith(const Layer& mask, drawing::MaskMeasure measure);
    // Composes the layer, its opacity from 0 to 1, over the surface.
    void layOn(const SurfaceView& surface, double opacity) const;
    // The same by a blend mode.
    void blendWith(const SurfaceView& surface, double opacity, drawing::BlendMode mode) const;

  private:
    // Puts pixel(the one below, the layer's) in the place of the one below wherever the layer has something.
    template <class Pixel> void compose(const SurfaceView& surface, Pixel pixel) const {
        const PixelRect box = place_.intersection(surface.clip());
        for (int y = box.top; y < box.bottom; ++y) {
            std::uint32_t* const below = surface.row(y);
            const std::uint32_t* const above = pixels_.row(y - place_.top);
            for (int x = box.left; x < box.right; ++x)
                if (const std::uint32_t own = above[x - place_.left])
                    below[x] = pixel(below[x], own);
        }
    }

    PixelRect place_;
    Surface pixels_;
};

} // namespace easel::paint
