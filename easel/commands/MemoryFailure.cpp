#include "easel/commands/MemoryFailure.h"

#include "easel/commands/Failure.h"
#include "easel/memory/LibraryCall.h"
#include "easel/memory/Refusals.h"

#include <sys/mman.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <new>

namespace easel::commands {

namespace {

// Of several threads only the first says it.
[[noreturn]] void end() {
    static std::atomic_flag isEnding;
    while (isEnding.test_and_set())
        ::pause();
    // Nobody is left to be told that even this could not be written.
    [[maybe_unused]] const auto written =
        ::write(STDERR_FILENO, kNotEnoughMemory, sizeof(kNotEnoughMemory) - 1);
    ::_exit(kFailed);
}

// Memory for the stack of a thread is asked for of the system itself.
bool isThereAStack() {
    constexpr std::size_t kStackBytes = std::size_t{8} << 20;
    void* const memory =
        ::mmap(nullptr, kStackBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK, -1, 0);
    return memory != MAP_FAILED && ::munmap(memory, kStackBytes) == 0;
}

void breakDown(int signal) {
    if (memory::refusals() > 0 || !isThereAStack())
        end();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Threads of libraries that find no memory to say so keep asking.
bool asksForEver() {
    constexpr int kMostRefusals = 100;
    thread_local int refusals = 0;
    return ++refusals > kMostRefusals;
}

void refuse() {
    if (memory::LibraryCall::isUnderWay() || asksForEver())
        end();
    throw std::bad_alloc();
}

} // namespace

void explainLackOfMemory() {
    struct sigaction action {};
    action.sa_handler = &breakDown;
    action.sa_flags = SA_NODEFER;
    for (const int signal : {SIGABRT, SIGTRAP, SIGSEGV, SIGBUS})
        ::sigaction(signal, &action, nullptr);
    std::set_new_handler(&refuse);
}

} // namespace easel::commands
