// Turns the signals that ask a program to end into an ordinary call on its own thread.
#pragma once

#include <QSocketNotifier>

#include <array>
#include <functional>
#include <memory>

namespace easel::window {

// While it lives, SIGTERM, SIGINT and SIGHUP call `quit` from the event loop; a second one ends the program
// as usual.
class TerminationSignals {
  public:
    explicit TerminationSignals(std::function<void()> quit);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

  private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace easel::window
