// A drawn item of a dialog, for the mouse and for the keyboard.
#pragma once

#include "easel/window/dialogs/ItemKeys.h"
#include "easel/window/dialogs/ItemWidget.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace easel::window {

class DialogContent;

// An item that the program draws. It shows nothing itself but the keyboard's focus: a ring around the item
// and one around what the keys work on. Keys become what the mouse would do, as the program knows no others.
class UserItem : public QWidget, public ItemWidget {
    Q_OBJECT

  public:
    UserItem(runtime::Dialog& dialog, int item, DialogContent& content);
    QWidget* widget() override { return this; }
    void modelChanged(runtime::ItemChange change) override;

    const runtime::DialogItem& item() const { return *dialog_.item(item_); }
    // Does this with the mouse as soon as the program hears it; beeps if there is nothing that can be done
    // then. The item may be another one.
    using Gesture = std::function<std::optional<runtime::MouseGesture>(const runtime::DialogItem&)>;
    void perform(Gesture gesture);
    void chooseColor();
    // What lies around a mark of the item.
    QRect onScreen(paint::PixelPoint mark) const;

  Q_SIGNALS:
    // It shows something else, or has got the keyboard.
    void shownChanged();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    // What the keys work on, in the widget; empty for the item as a whole.
    QRectF focusedPart() const;

    runtime::Dialog& dialog_;
    int item_;
    DialogContent& content_;
};

} // namespace easel::window
