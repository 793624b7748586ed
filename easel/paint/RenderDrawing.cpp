// Paints drawings in bands of rows, each of them by whichever thread is free.
#include "easel/paint/RenderDrawing.h"

#include "easel/paint/Layer.h"
#include "easel/paint/ObjectPainter.h"

namespace easel::paint {

namespace {

using drawing::Affine;
using drawing::Box;

// The box of drawing coordinates that the pixels show, a little more to be safe from rounding.
Box drawnArea(const PixelRect& pixels, const Affine& toSurface) {
    const Box shown{static_cast<double>(pixels.left), static_cast<double>(pixels.top),
                    static_cast<double>(pixels.right), static_cast<double>(pixels.bottom)};
    return boxUnder(shown.grownBy(1), toSurface.inverse());
}

// Calls paint(the surface narrowed to a band) for each band.
template <class Paint> void forEachBand(const SurfaceView& surface, unsigned threads, Paint paint) {
    const PixelRect& clip = surface.clip();
    if (clip.empty())
        return;
    const int first = clip.top / kThreadBandRows;
    const int last = (clip.bottom - 1) / kThreadBandRows;
    const auto count = static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1;
    forEachPiece(count, threads, [&](std::size_t piece) {
        const int top = (first + static_cast<int>(piece)) * kThreadBandRows;
        paint(surface.clippedTo(
            {.left = clip.left, .top = top, .right = clip.right, .bottom = top + kThreadBandRows}));
    });
}

// The surface with all that it holds is one sheet.
class WholeSurface {
  public:
    WholeSurface(const SurfaceView& surface, const Affine& toSurface, FilterPictures* kept,
                 BackgroundLayers* background)
        : sheet_{toSurface,
                 {.right = surface.width(), .bottom = surface.height()},
                 kept ? kept : &own_,
                 background} {}
    ObjectPainter painter() const { return ObjectPainter(sheet_); }

  private:
    FilterPictures own_;
    Sheet sheet_;
};

// What the surface holds already has no part in how the objects blend.
void paintApart(const WholeSurface& whole, std::span<const drawing::ObjectPtr> objects,
                const SurfaceView& surface, const Affine& toSurface) {
    Layer layer(surface.clip());
    whole.painter().paint(objects, layer.view(), layer.mapped(toSurface));
    layer.layOn(surface, 1);
}

} // namespace

void renderObjects(std::span<const drawing::ObjectPtr> objects, const SurfaceView& surface,
                   const Affine& toSurface, unsigned threads) {
    if (!toSurface.invertible())
        return;
    const WholeSurface whole(surface, toSurface, nullptr, nullptr);
    forEachBand(surface, threads,
                [&](const SurfaceView& band) { whole.painter().paint(objects, band, toSurface); });
}

void renderDrawing(const drawing::Drawing& drawing, const SurfaceView& surface, const Affine& toSurface,
                   unsigned threads, FilterPictures* kept, BackgroundLayers* background) {
    if (!toSurface.invertible())
        return;
    const WholeSurface whole(surface, toSurface, kept, background);
    forEachBand(surface, threads, [&](const SurfaceView& band) {
        const auto objects = drawing.objectsWithin(drawnArea(band.clip(), toSurface));
        if (drawing.blends())
            paintApart(whole, objects, band, toSurface);
        else
            whole.painter().paint(objects, band, toSurface);
    });
}

} // namespace easel::paint
