// A tool of the palette as the canvas uses it.
#pragma once

#include <QPointF>

class QKeyEvent;
class QMouseEvent;

namespace easel::window {

class Canvas;

class CanvasTool {
  public:
    virtual ~CanvasTool() = default;

    // The left button went down; positions are in the canvas's viewport. May return only after the release.
    virtual void press(Canvas& canvas, const QMouseEvent& event) = 0;
    virtual void move(Canvas&, const QMouseEvent&) {}
    virtual void release(Canvas&, const QMouseEvent&) {}
    // The user wants nothing to come of what was begun with the last press.
    virtual void breakOff(Canvas&) {}
    // A key went down that the canvas has no use for; false if the tool has none either.
    virtual bool key(Canvas&, const QKeyEvent&) { return false; }
    // The pointer is over the canvas, or a key changed: show the right cursor.
    virtual void updateCursor(Canvas& canvas) = 0;
};

} // namespace easel::window
