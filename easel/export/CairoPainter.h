// Paints drawings through Cairo, for the formats that it writes.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/export/Progress.h"
#include "easel/paint/Painter.h"

#include <span>

using cairo_t = struct _cairo;

namespace easel::exports {

class CairoPainter {
  public:
    // User space of the context is that of the drawing. The context must outlive the painter.
    explicit CairoPainter(cairo_t* cairo) : cairo_(cairo) {}

    // Throws Cancelled.
    void paint(const drawing::Drawing& drawing, const Progress& progress = {});

  private:
    void paintWithin(const drawing::Group* parent, std::span<const drawing::ObjectPtr> objects);
    void paintGroup(const drawing::Group& group, std::span<const drawing::ObjectPtr> objects);
    void paintObject(const drawing::Object& object);
    void paintFill(const drawing::Object& object, double opacity);
    void paintStroke(const drawing::Object& object, double opacity);
    // Paints something through the clip path.
    template <class Content> void clipped(const drawing::ClipPath* clip, Content paint);
    // Narrows the context's clip; false, having done nothing, if only a mask can say it.
    bool narrow(const drawing::ClipPath& clip);
    void paintMask(const drawing::ClipPath& clip);

    void setSource(const paint::PaintSource& source, double opacity);
    void setGradient(const drawing::Gradient& gradient, double opacity);
    void addPath(const drawing::Path& path);

    cairo_t* cairo_;
    PieceCount painted_;
};

} // namespace easel::exports
