// The mouse, and the keys that stand for it.
#include "easel/window/dialogs/UserItem.h"

#include "easel/window/dialogs/DialogContent.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace easel::window {

UserItem::UserItem(runtime::Dialog& dialog, int item, DialogContent& content)
    : QWidget(&content), item_(item), content_(content) {
    const paint::PixelRect& bounds = dialog.item(item)->bounds;
    mark_ = QPoint(bounds.width() / 2, bounds.height() / 2);
    setAttribute(Qt::WA_NoSystemBackground);
    // A click leaves the keyboard where it is, as in any dialog with a field to type in.
    setFocusPolicy(Qt::TabFocus);
}

void UserItem::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        content_.press(item_, mapToParent(event->position()));
}

void UserItem::mouseMoveEvent(QMouseEvent* event) {
    content_.move(mapToParent(event->position()));
}

void UserItem::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        content_.release(mapToParent(event->position()));
}

bool UserItem::moveMark(const QKeyEvent& event) {
    const double step = (event.modifiers() & Qt::ShiftModifier) != 0 ? 10 : 1;
    QPointF by;
    switch (event.key()) {
    case Qt::Key_Left:
        by = {-step, 0};
        break;
    case Qt::Key_Right:
        by = {step, 0};
        break;
    case Qt::Key_Up:
        by = {0, -step};
        break;
    case Qt::Key_Down:
        by = {0, step};
        break;
    default:
        return false;
    }
    const QPointF to = mark_ + by;
    // With the button down the mark may leave the item, as the mouse may.
    mark_ = spaceBar_ == SpaceBar::Down
                ? to
                : QPointF(std::clamp(to.x(), 0.0, width() - 1.0), std::clamp(to.y(), 0.0, height() - 1.0));
    return true;
}

void UserItem::keyPressEvent(QKeyEvent* event) {
    if (moveMark(*event)) {
        if (spaceBar_ == SpaceBar::Down)
            content_.move(markInContent());
        update();
        return;
    }
    if (event->key() != Qt::Key_Space) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat() && spaceBar_ == SpaceBar::Up) {
        spaceBar_ = SpaceBar::Down;
        content_.press(item_, markInContent());
    }
}

void UserItem::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || event->isAutoRepeat() || spaceBar_ == SpaceBar::Up) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    spaceBar_ = SpaceBar::Up;
    content_.release(markInContent());
}

void UserItem::focusOutEvent(QFocusEvent* event) {
    if (spaceBar_ == SpaceBar::Down) {
        spaceBar_ = SpaceBar::Up;
        content_.release(markInContent());
    }
    QWidget::focusOutEvent(event);
    update();
}

void UserItem::paintEvent(QPaintEvent*) {
    if (!hasFocus())
        return;
    const QColor accent = palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(accent, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
    painter.setPen(QPen(palette().color(QPalette::Base), 3));
    painter.drawEllipse(mark_, 4, 4);
    painter.setPen(QPen(accent, 1.5));
    painter.drawEllipse(mark_, 4, 4);
}

} // namespace easel::window
