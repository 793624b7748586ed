// The content area of a dialog: its image, and the drawn items as widgets on top of it.
#pragma once

#include "easel/window/dialogs/ItemWidget.h"
#include "easel/window/waiting/PointerSurface.h"

#include <QPointer>
#include <QWidget>

namespace easel::window {

class DesktopUser;

// One pixel of the dialog is one pixel of the desktop; the image behind has the screen's own resolution.
class DialogContent : public QWidget, public PointerSurface {
    Q_OBJECT

  public:
    DialogContent(runtime::Dialog& dialog, DesktopUser& user, QWidget* parent);
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

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    runtime::Dialog& dialog_;
    DesktopUser& user_;
};

// An item that the program draws. It shows nothing itself but the keyboard's focus. With the keyboard, the
// arrow keys move a mark within the item (Shift: ten pixels at a time) and the space bar is the mouse button
// at the mark.
class UserItem : public QWidget, public ItemWidget {
    Q_OBJECT

  public:
    UserItem(runtime::Dialog& dialog, int item, DialogContent& content);
    QWidget* widget() override { return this; }
    void modelChanged(runtime::ItemChange) override {}

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    enum class SpaceBar { Up, Down };

    bool moveMark(const QKeyEvent& event);
    QPointF markInContent() const { return mapToParent(mark_); }

    int item_;
    DialogContent& content_;
    QPointF mark_;
    SpaceBar spaceBar_ = SpaceBar::Up;
};

} // namespace easel::window
