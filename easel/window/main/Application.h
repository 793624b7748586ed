// The application object of the desktop.
#pragma once

#include "easel/window/waiting/TimingJournal.h"

#include <QApplication>

namespace easel::window {

class Application : public QApplication {
    Q_OBJECT

  public:
    // The arguments outlive the application.
    Application(int& argc, char** argv) : QApplication(argc, argv), times_(TimingJournal::ofEnvironment()) {}

    bool notify(QObject* receiver, QEvent* event) override;
    bool event(QEvent* event) override;

  Q_SIGNALS:
    // The desktop's session is over, and with it the program, whatever is open.
    void sessionOver();

  private:
    std::unique_ptr<TimingJournal> times_;
};

} // namespace easel::window
