// Paints drawings through Cairo, for the formats that it writes.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/export/CairoLetters.h"
#include "easel/export/CairoPicture.h"
#include "easel/export/Progress.h"
#include "easel/memory/LibraryCall.h"
#include "easel/paint/FilterPictures.h"
#include "easel/paint/ObjectPaintSource.h"
#include "easel/paint/Painter.h"

#include <memory>
#include <span>

using cairo_t = struct _cairo;
using cairo_pattern_t = struct _cairo_pattern;

namespace easel::exports {

class CairoPainter {
  public:
    // User space of the context is that of the drawing. The context must outlive the painter. What can be
    // said by a picture only gets `detail` pixels for each of the target's own, across and down.
    explicit CairoPainter(cairo_t* cairo, double detail = 1)
        : cairo_(cairo), detail_(detail), letters_(cairo) {}

    // Throws Cancelled.
    void paint(const drawing::Drawing& drawing, const Progress& progress = {});

  private:
    void paintWithin(const drawing::Group* parent, std::span<const drawing::ObjectPtr> objects);
    void paintGroup(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects);
    void paintContent(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects);
    void paintObjects(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects);
    void paintFiltered(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects);
    // Paints something into a group of its own and gives it to use(pattern).
    template <class Content, class Use> void apart(Content paint, Use use);
    void paintObject(const drawing::Object& object);
    void paintFill(const drawing::Object& object, double opacity);
    // False, having shown nothing, if only the outline can say it.
    bool paintLetters(const drawing::Object& object, const type::SetText& text,
                      const paint::HeldPaintSource& source, double opacity);
    // What is to be written as text; null: nothing. What masks show is no text.
    const type::SetText* textOf(const drawing::Object& object) const {
        return luminanceAsAlpha_ || !letters_.possible() ? nullptr : drawing::styleOf(object).text.get();
    }
    void paintStroke(const drawing::Object& object, double opacity);
    // With the source that the context has. `units` shape the pen.
    void strokeOutline(const drawing::Object& object, const drawing::Affine& units);
    // Paints something through the clip path.
    template <class Content> void clipped(const drawing::ClipPath* clip, Content paint);
    // Narrows the context's clip; false, having done nothing, if only a mask can say it.
    bool narrow(const drawing::ClipPath& clip);
    void paintMask(const drawing::ClipPath& clip);

    using Pattern = std::unique_ptr<cairo_pattern_t, void (*)(cairo_pattern_t*)>;
    // A pattern whose alpha is what the mask shows.
    Pattern maskPattern(const drawing::Mask& mask);
    Pattern maskPicture(const drawing::Mask& mask);
    void paintPicture(const drawing::Object& object, const drawing::PlacedPicture& picture, double opacity);

    // Calls `use` when the context has the source, with `opacity` from 0 to 1 in it or laid on the result.
    template <class Use> void withSource(const paint::HeldPaintSource& held, double opacity, Use use);
    void setSource(const paint::PaintSource& source, double opacity);
    // False, having done nothing, for a pattern without extent.
    bool setPattern(const drawing::Pattern& pattern);
    void setGradient(const drawing::Gradient& gradient, double opacity);
    // What share of its opacity a color is painted with.
    double shareOf(const drawing::Rgb16& color) const;
    void addPath(const drawing::Path& path);

    cairo_t* cairo_;
    double detail_;
    bool blends_ = false;           // anywhere in the drawing
    bool luminanceAsAlpha_ = false; // colors are painted with their luminance in the place of their opacity
    CairoPictures pictures_;
    CairoLetters letters_;
    PieceCount painted_;
    const memory::LibraryCall inCairo_;
    paint::FilterPictures filterPictures_;
};

} // namespace easel::exports
