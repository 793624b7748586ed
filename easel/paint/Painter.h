// Fills shapes with colors, gradients and images.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Paint.h"
#include "easel/drawing/Path.h"
#include "easel/paint/coverage/Rasteriser.h"
#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/gradient/LinearShader.h"
#include "easel/paint/gradient/RadialPiece.h"
#include "easel/paint/picture/Image.h"
#include "easel/paint/pixels/Surface.h"

#include <functional>
#include <span>
#include <variant>

namespace easel::paint {

// What a shape is filled with. A gradient or an image is only referred to and must live through the call it
// is given to.
using PaintSource = std::variant<drawing::ColorPaint, const drawing::Gradient*, const Image*>;

// Hands over the corners of one polygon after the other, which the receiver may change, until it says that no
// more are wanted. Gives a factor for the opacity that they are painted with. Asked again, it hands over the
// same.
using PolygonReceiver = std::function<bool(std::span<drawing::Point>)>;
using PolygonSource = std::function<double(const PolygonReceiver&)>;

// Shapes, gradients and images are in drawing coordinates, which `toSurface` maps to surface coordinates,
// where pixel (x, y) covers x to x + 1 and y to y + 1. A pixel takes the color at its centre, weighted by the
// exact share of its area that the shape covers, and is composed over what was there. Nothing is painted
// outside the view's clip. `opacity`, from 0 to 1, multiplies that of the paint source.
//
// A painter keeps scratch memory from one fill to the next; use one for each thread.
class Painter {
  public:
    void fill(const SurfaceView& surface, const drawing::Path& shape, drawing::FillRule rule,
              const drawing::Affine& toSurface, const PaintSource& source, double opacity = 1);
    // Polygons that are flat already; each counts as closed.
    void fill(const SurfaceView& surface, std::span<const drawing::Contour> polygons, drawing::FillRule rule,
              const drawing::Affine& toSurface, const PaintSource& source, double opacity = 1);
    // Polygons that come one at a time, so that not all of them have to be in memory.
    void fill(const SurfaceView& surface, const PolygonSource& polygons, drawing::FillRule rule,
              const drawing::Affine& toSurface, const PaintSource& source, double opacity = 1);
    // The whole clip.
    void fillAll(const SurfaceView& surface, const drawing::Affine& toSurface, const PaintSource& source,
                 double opacity = 1);

  private:
    template <class Use>
    void withShader(const SurfaceView& surface, const PixelRect& area, const drawing::Affine& toSurface,
                    const PaintSource& source, double opacity, const Use& use);
    template <class AddSides>
    void fillPart(const SurfaceView& surface, drawing::FillRule rule, const drawing::Affine& toSurface,
                  const PaintSource& source, double opacity, const AddSides& addSides);
    void sweep(const SurfaceView& surface, drawing::FillRule rule, const drawing::Affine& toSurface,
               const PaintSource& source, double opacity);

    Rasteriser rasteriser_;
    ColorSpans colorSpans_;
    LinearScratch linear_;
    std::vector<RadialPiece> radialPieces_;
};

} // namespace easel::paint
