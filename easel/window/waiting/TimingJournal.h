// Notes when events arrive and when windows have been painted, for those who measure the program.
#pragma once

#include <QEvent>
#include <QRegion>

#include <cstdio>
#include <memory>

class QObject;

namespace easel::window {

// Writes a line for each press, release, move, wheel turn and key that reaches a window, and one for each
// time that a window's new pixels have been handed to the screen:
//
//     TIME press|release|move|wheel|key SENT TITLE
//     TIME painted PIXELS TITLE
//
// TIME is the monotonic clock in microseconds; SENT is when the event happened by the clock of the display,
// in milliseconds, which on the same machine is the same clock. PIXELS is how much was painted, in square
// window points. TITLE is the window's.
class TimingJournal {
  public:
    // Writes to the file that the environment variable EASEL_TIMES names; null without one.
    static std::unique_ptr<TimingJournal> ofEnvironment();
    ~TimingJournal();
    TimingJournal(const TimingJournal&) = delete;
    TimingJournal& operator=(const TimingJournal&) = delete;

    // Before and after the handling of each event.
    void begins(QObject& receiver, const QEvent& event);
    void ended(const QObject& receiver, QEvent::Type type);

  private:
    explicit TimingJournal(std::FILE* file) : file_(file) {}

    std::FILE* file_;
    QRegion painted_; // what the handling of the present event has painted
};

} // namespace easel::window
