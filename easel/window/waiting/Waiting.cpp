// Sleeps in the event loop.
#include "easel/window/waiting/Waiting.h"

#include <QCoreApplication>
#include <QTimer>

namespace easel::window {

Waiting::Call::Call(Waiting& waiting) : waiting_(waiting) {
    ++waiting_.calls_;
}

Waiting::Call::~Call() {
    if (--waiting_.calls_ > 0)
        return;
    waiting_.cancelled_ = false;
    Q_EMIT waiting_.becameIdle();
}

void Waiting::cancelAll() {
    if (busy())
        cancelled_ = true;
}

void Waiting::sleep(std::optional<std::chrono::milliseconds> atMost) {
    QTimer timer;
    if (atMost) {
        timer.setTimerType(Qt::PreciseTimer);
        timer.setSingleShot(true);
        timer.start(*atMost);
    }
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace easel::window
