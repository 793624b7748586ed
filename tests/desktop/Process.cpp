// Starting, watching and ending processes.
#include "tests/desktop/Process.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace desktop {
namespace {

[[noreturn]] void become(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& environment, const std::string& output) {
    for (const auto& [name, value] : environment)
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    const int file = open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    dup2(file, STDOUT_FILENO);
    dup2(file, STDERR_FILENO);
    std::vector<char*> words;
    for (const std::string& word : command)
        words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    execvp(words[0], words.data());
    std::_Exit(127);
}

} // namespace

Process::Process(const std::vector<std::string>& command,
                 const std::map<std::string, std::string>& environment, const std::string& output)
    : id_(fork()) {
    if (id_ < 0)
        throw std::runtime_error("cannot fork");
    if (id_ == 0)
        become(command, environment, output);
}

Process::~Process() {
    if (!running())
        return;
    signal(SIGKILL);
    wait(std::chrono::seconds(5));
}

bool Process::running() {
    if (exitCode_)
        return false;
    int status = 0;
    if (waitpid(id_, &status, WNOHANG) != id_)
        return true;
    exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return false;
}

void Process::signal(int number) const {
    kill(id_, number);
}

std::optional<int> Process::wait(std::chrono::milliseconds atMost) {
    const auto end = std::chrono::steady_clock::now() + atMost;
    while (running() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return exitCode_;
}

std::chrono::milliseconds Process::processorTime() const {
    std::ifstream stat("/proc/" + std::to_string(id_) + "/stat");
    std::string word;
    // The name may hold blanks; what follows its closing bracket does not.
    std::getline(stat, word, ')');
    for (int i = 0; i < 11; ++i)
        stat >> word;
    long user = 0;
    long system = 0;
    stat >> user >> system;
    return std::chrono::milliseconds((user + system) * 1000 / sysconf(_SC_CLK_TCK));
}

} // namespace desktop
