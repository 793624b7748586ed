// The mouse, and the keys that stand for it.
#include "easel/window/dialogs/UserItem.h"

#include "easel/runtime/PreviewGestures.h"
#include "easel/runtime/StopRamp.h"
#include "easel/window/dialogs/DialogContent.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace easel::window {
namespace {

// From the top of a mark: what lies around all of it.
constexpr QRectF kAroundMark{-6.5, -1.5, 14, 12};
constexpr double kCentreRing = 5;

} // namespace

UserItem::UserItem(runtime::Dialog& dialog, int item, DialogContent& content)
    : QWidget(&content), dialog_(dialog), item_(item), content_(content) {
    setAttribute(Qt::WA_NoSystemBackground);
    // A click leaves the keyboard where it is, as in any dialog with a field to type in.
    setFocusPolicy(Qt::TabFocus);
}

void UserItem::modelChanged(runtime::ItemChange) {
    if (hasFocus())
        update();
    Q_EMIT shownChanged();
}

QRect UserItem::onScreen(paint::PixelPoint mark) const {
    const QRect around = kAroundMark.translated(mark.h, mark.v).toAlignedRect();
    return {content_.mapToGlobal(around.topLeft()), around.size()};
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

void UserItem::perform(Gesture gesture) {
    content_.whenReady([this, gesture = std::move(gesture)] {
        if (const auto possible = gesture(item()))
            content_.perform(item_, *possible);
        else
            QApplication::beep();
    });
}

void UserItem::chooseColor() {
    content_.whenReady([this] {
        const auto& items = dialog_.items();
        const auto swatch = std::find_if(items.begin(), items.end(), [](const runtime::DialogItem& each) {
            return sortOf(each) == ItemSort::Swatch;
        });
        if (swatch != items.end())
            content_.perform(swatch->number, {swatch->bounds.middle(), {}});
    });
}

void UserItem::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers others = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const ItemKey key{static_cast<Qt::Key>(event->key()), (event->modifiers() & Qt::ShiftModifier) != 0};
    const auto row = others == Qt::NoModifier ? rowOf(sortOf(item()), key) : std::nullopt;
    if (!row)
        QWidget::keyPressEvent(event);
    else if (row->gesture)
        perform([row = *row, key](const runtime::DialogItem& now) {
            return sortOf(now) == row.sort ? row.gesture(now, key) : std::nullopt;
        });
    else if (!event->isAutoRepeat())
        chooseColor();
}

void UserItem::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
    Q_EMIT shownChanged();
}

void UserItem::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

QRectF UserItem::focusedPart() const {
    const QPointF corner = geometry().topLeft();
    if (const auto ramp = runtime::StopRamp::in(item())) {
        const paint::PixelPoint mark = ramp->markOf(ramp->active());
        return kAroundMark.translated(QPointF(mark.h, mark.v) - corner);
    }
    if (const auto centre = runtime::shownCentre(item())) {
        const QPointF at = QPointF(centre->x, centre->y) - corner;
        return {at - QPointF(kCentreRing, kCentreRing), at + QPointF(kCentreRing, kCentreRing)};
    }
    return {};
}

void UserItem::paintEvent(QPaintEvent*) {
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto ring = [&](const QRectF& around, double width) {
        painter.setPen(QPen(palette().color(QPalette::Base), width + 2));
        painter.drawRoundedRect(around, kCentreRing, kCentreRing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), width));
        painter.drawRoundedRect(around, kCentreRing, kCentreRing);
    };
    ring(QRectF(rect()).adjusted(1, 1, -1, -1), 2);
    if (const QRectF part = focusedPart(); !part.isEmpty())
        ring(part, 1.5);
}

} // namespace easel::window
