// The application object of the desktop.
#pragma once

#include "easel/window/waiting/TimingJournal.h"

#include <QApplication>
#include <QTimer>

namespace easel::window {

class Application : public QApplication {
    Q_OBJECT

  public:
    // The arguments outlive the application.
    Application(int& argc, char** argv);

    // What runs out of memory while it handles an event ends there, and the program goes on.
    bool notify(QObject* receiver, QEvent* event) override;
    bool event(QEvent* event) override;

  Q_SIGNALS:
    // The desktop's session is over, and with it the program, whatever is open.
    void sessionOver();
    // Something was given up for want of memory. What it had taken is free again.
    void ranOutOfMemory();

  private:
    bool notifyTimed(QObject* receiver, QEvent* event);
    bool giveUp();

    std::unique_ptr<TimingJournal> times_;
    QTimer telling_;
};

} // namespace easel::window
