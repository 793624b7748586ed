// Lets the timing journal see every event, if there is one.
#include "easel/window/main/Application.h"

namespace easel::window {

bool Application::notify(QObject* receiver, QEvent* event) {
    if (!times_)
        return QApplication::notify(receiver, event);
    // Some receivers are gone afterwards, but never a window that was asked to paint.
    const QEvent::Type type = event->type();
    times_->begins(*receiver, *event);
    const bool handled = QApplication::notify(receiver, event);
    times_->ended(*receiver, type);
    return handled;
}

} // namespace easel::window
