// One thread works, the other handles events.
#include "easel/window/BackgroundWork.h"

#include "easel/window/DesktopUser.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <QTimer>

#include <atomic>
#include <exception>
#include <thread>

namespace easel::window {
namespace {

constexpr int kAppearsAfter = 500; // milliseconds
constexpr int kFrame = 33;

} // namespace

std::unique_ptr<QProgressDialog> makeProgressDialog(const QString& text, QWidget* over) {
    auto dialog = std::make_unique<QProgressDialog>(text, QObject::tr("Cancel"), 0, kProgressSteps, over);
    dialog->setWindowTitle(QObject::tr("Easel"));
    dialog->setMinimumDuration(kAppearsAfter);
    dialog->setValue(0);
    return dialog;
}

void workBeside(DesktopUser& user, const QString& text, QWidget* over,
                const std::function<void(const paint::Progress& progress)>& work) {
    const DesktopUser::Call call(user);
    const std::unique_ptr<QProgressDialog> dialog = makeProgressDialog(text, over);
    const InputGate::Scope scope(user.gate(), dialog.get());

    std::atomic<double> done = 0;
    std::atomic<bool> wanted = true;
    std::atomic<bool> finished = false;
    std::exception_ptr failure;
    const paint::Progress progress([&](double part) {
        done = part;
        return wanted.load();
    });
    std::jthread worker([&] {
        try {
            work(progress);
        } catch (...) {
            failure = std::current_exception();
        }
        finished = true;
        // Whoever sleeps until something happens has to wake up and see it.
        QMetaObject::invokeMethod(
            qApp, [] {}, Qt::QueuedConnection);
    });
    QTimer frames;
    QObject::connect(&frames, &QTimer::timeout, dialog.get(),
                     [&] { dialog->setValue(static_cast<int>(done * (kProgressSteps - 1))); });
    frames.start(kFrame);
    while (!finished) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (dialog->wasCanceled() || user.cancelled())
            wanted = false;
    }
    worker.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace easel::window
