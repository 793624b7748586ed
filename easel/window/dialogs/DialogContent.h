// The content area of a dialog: its image, and where the mouse goes down in it.
#pragma once

#include "easel/runtime/Dialog.h"
#include "easel/runtime/MouseGesture.h"
#include "easel/window/waiting/PointerSurface.h"

#include <QWidget>

#include <deque>
#include <functional>

namespace easel::window {

class PointerTracker;

// One pixel of the dialog is one pixel of the desktop; the image behind has the screen's own resolution.
class DialogContent : public QWidget, public PointerSurface {
    Q_OBJECT

  public:
    // Both outlive the widget.
    DialogContent(runtime::Dialog& dialog, PointerTracker& pointer, QWidget* parent);
    ~DialogContent() override;

    // Whole pixels, as dialogs count.
    drawing::Point toLocal(QPointF position) const override;
    double pixelsPerUnit() const override { return 1; }
    void scrollTowards(QPointF) override {}
    bool wouldScroll(QPointF) const override { return false; }

    // The mouse, or what stands for it, goes down in an item.
    void press(int item, QPointF position);
    void move(QPointF position);
    void release(QPointF position);

    // What keys stand for is done when the program waits for the user and has heard all that came before:
    // only then is what it shows what the user goes by.
    void whenReady(std::function<void()> action);
    void setReady(bool ready);
    // Does this with the mouse in an item. Meanwhile the keyboard stays where it is.
    void perform(int item, const runtime::MouseGesture& gesture);

    // Takes back what the mouse has dragged since it went down; false if it drags nothing.
    bool takeBackDrag();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void actIfReady();

    runtime::Dialog& dialog_;
    PointerTracker& pointer_;
    QPointF pressed_;
    bool ready_ = false;
    std::deque<std::function<void()>> due_;
};

} // namespace easel::window
