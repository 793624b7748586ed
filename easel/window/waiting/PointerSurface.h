// Something in which the mouse can be pressed and followed: a drawing's canvas or a dialog's content.
#pragma once

#include "easel/drawing/Geometry.h"

#include <QPointF>

namespace easel::window {

class PointerSurface {
  public:
    virtual ~PointerSurface() = default;

    // From a position in the widget to the coordinates in which the host speaks of the mouse.
    virtual drawing::Point toLocal(QPointF position) const = 0;

    // How many screen pixels one unit of these coordinates is.
    virtual double pixelsPerUnit() const = 0;

    // Moves what is seen towards a position outside, if this surface scrolls and the position is one.
    virtual void scrollTowards(QPointF position) = 0;
    virtual bool wouldScroll(QPointF position) const = 0;
};

} // namespace easel::window
