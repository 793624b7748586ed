// A program that a test started and ends again.
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace desktop {

class Process {
  public:
    // Starts the program with these variables set beside those of the test, and these taken away (empty
    // value). What it prints goes to `output`, a file.
    Process(const std::vector<std::string>& command, const std::map<std::string, std::string>& environment,
            const std::string& output);
    // Kills it if it still runs.
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t id() const { return id_; }
    bool running();
    void signal(int number) const;
    // The exit code (128 and more: killed by a signal), or nothing if it still runs after that time.
    std::optional<int> wait(std::chrono::milliseconds atMost);
    // Processor time used so far.
    std::chrono::milliseconds processorTime() const;

  private:
    pid_t id_;
    std::optional<int> exitCode_;
};

} // namespace desktop
