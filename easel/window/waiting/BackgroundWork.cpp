// One thread works, the other handles events.
#include "easel/window/waiting/BackgroundWork.h"

#include "easel/window/waiting/Interaction.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <QTimer>

#include <atomic>
#include <exception>
#include <system_error>
#include <thread>

namespace easel::window {
namespace {

constexpr int kAppearsAfter = 500; // milliseconds
constexpr int kFramePause = 33;
constexpr int kSteps = 1000;

// Takes the keyboard, so that Escape cancels.
class ProgressWindow : public QProgressDialog {
  public:
    using QProgressDialog::QProgressDialog;

  protected:
    void showEvent(QShowEvent* event) override {
        QProgressDialog::showEvent(event);
        activateWindow();
    }
};

} // namespace

std::unique_ptr<QProgressDialog> makeProgressDialog(const QString& text, QWidget* over) {
    auto dialog = std::make_unique<ProgressWindow>(text, QObject::tr("Cancel"), 0, kSteps, over);
    dialog->setWindowTitle(QObject::tr("Easel"));
    dialog->setMinimumDuration(kAppearsAfter);
    dialog->setValue(0);
    return dialog;
}

void showProgress(QProgressDialog& dialog, double done) {
    // A new value brings a cancelled dialog back, and the last one closes it.
    if (!dialog.wasCanceled())
        dialog.setValue(static_cast<int>(done * (kSteps - 1)));
}

void runInBackground(Interaction& interaction, const QString& text, QWidget* over,
                     const std::function<void(const exports::Progress& progress)>& work) {
    const Waiting::Call call(interaction.waiting);
    const std::unique_ptr<QProgressDialog> dialog = makeProgressDialog(text, over);
    const InputGate::Scope scope(interaction.gate, dialog.get());

    std::atomic<double> done = 0;
    std::atomic<bool> wanted = true;
    std::atomic<bool> finished = false;
    std::exception_ptr failure;
    const exports::Progress progress([&](double part) {
        done = part;
        return wanted.load();
    });
    const auto doIt = [&] {
        try {
            work(progress);
        } catch (...) {
            failure = std::current_exception();
        }
        finished = true;
        // Whoever sleeps until something happens has to wake up and see it.
        QMetaObject::invokeMethod(
            qApp, [] {}, Qt::QueuedConnection);
    };
    std::jthread worker;
    try {
        worker = std::jthread(doIt);
    } catch (const std::system_error&) {
        // Without a thread to spare the window has to wait.
        doIt();
    }
    QTimer frames;
    QObject::connect(&frames, &QTimer::timeout, dialog.get(), [&] { showProgress(*dialog, done); });
    frames.start(kFramePause);
    while (!finished) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (dialog->wasCanceled() || interaction.waiting.cancelled())
            wanted = false;
    }
    if (worker.joinable())
        worker.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace easel::window
