// A drawn item of a dialog, for the mouse and for the keyboard.
#pragma once

#include "easel/window/dialogs/ItemWidget.h"

#include <QWidget>

namespace easel::window {

class DialogContent;

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
