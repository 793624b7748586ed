// Lets the timing journal see every event, if there is one, survives the lack of memory, and tells the end of
// a session from other ends.
#include "easel/window/main/Application.h"

#include "easel/memory/MemoryReserve.h"

#include <QThreadPool>

#include <new>
#include <stdexcept>
#include <system_error>

namespace easel::window {
namespace {

// What is told once may have failed several times.
constexpr std::chrono::milliseconds kBeforeTelling{100};

// Qt has large areas painted by threads of this pool, and waits forever for one that it could not start. A
// single one that is there from the beginning never has to be started.
void keepPaintingThread() {
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(-1);
    pool.start([] {});
}

} // namespace

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv), times_(TimingJournal::ofEnvironment()) {
    keepPaintingThread();
    telling_.setSingleShot(true);
    telling_.setInterval(kBeforeTelling);
    connect(&telling_, &QTimer::timeout, this, &Application::ranOutOfMemory);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return notifyTimed(receiver, event);
    } catch (const std::bad_alloc&) {
        return giveUp();
    } catch (const std::length_error&) {
        // More than any memory holds was asked for.
        return giveUp();
    } catch (const std::system_error& error) {
        // No thread can be had, whose stack is memory too.
        if (error.code() != std::errc::resource_unavailable_try_again)
            throw;
        return giveUp();
    }
}

bool Application::giveUp() {
    memory::memoryIsLeft();
    telling_.start();
    return false;
}

bool Application::notifyTimed(QObject* receiver, QEvent* event) {
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
