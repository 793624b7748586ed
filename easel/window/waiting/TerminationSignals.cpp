// A pipe carries the signal from its handler, which may do next to nothing, to the event loop.
#include "easel/window/waiting/TerminationSignals.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace easel::window {
namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};
std::array<int, 2> thePipe{-1, -1};

void noteSignal(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(thePipe[1], &byte, 1);
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> quit) {
    if (pipe2(thePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(thePipe[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [call = std::move(quit)] {
        char byte = 0;
        while (read(thePipe[0], &byte, 1) > 0) {
        }
        call();
    });
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : kSignals)
        sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : kSignals)
        std::signal(signal, SIG_DFL);
    notifier_.reset();
    for (int& end : thePipe) {
        if (end >= 0)
            close(end);
        end = -1;
    }
}

} // namespace easel::window
