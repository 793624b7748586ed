// Reads the modifier keys off every key and mouse event.
#include "easel/window/waiting/ModifierKeys.h"

#include "easel/window/waiting/PointerTracker.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace easel::window {

ModifierKeys::ModifierKeys(PointerTracker& pointer) : pointer_(pointer) {
    qApp->installEventFilter(this);
}

bool ModifierKeys::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        if (receiver->isWidgetType())
            note(static_cast<const QInputEvent&>(*event));
        break;
    default:
        break;
    }
    return false;
}

// The event that reports a modifier key itself still carries the state from before it.
void ModifierKeys::note(const QInputEvent& event) {
    Qt::KeyboardModifiers now = event.modifiers();
    if (event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease) {
        const bool down = event.type() == QEvent::KeyPress;
        const int key = static_cast<const QKeyEvent&>(event).key();
        if (key == Qt::Key_Shift)
            now.setFlag(Qt::ShiftModifier, down);
        else if (key == Qt::Key_Control)
            now.setFlag(Qt::ControlModifier, down);
        else if (key == Qt::Key_Alt)
            now.setFlag(Qt::AltModifier, down);
    }
    if (now == down_)
        return;
    const bool hadOption = optionIsDown();
    down_ = now;
    pointer_.keysChanged();
    if (optionIsDown() != hadOption)
        Q_EMIT optionChanged();
}

} // namespace easel::window
