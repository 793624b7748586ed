// Lets the timing journal see every event, if there is one, and tells the end of a session from other ends.
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

// Qt would close the windows, which would ask about what is unsaved, now that nobody answers any more.
bool Application::event(QEvent* event) {
    if (event->type() != QEvent::Quit || !event->spontaneous())
        return QApplication::event(event);
    Q_EMIT sessionOver();
    return true;
}

} // namespace easel::window
