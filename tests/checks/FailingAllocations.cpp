// Loaded ahead of a program's libraries, refuses memory: the allocations number FAIL_FROM to FAIL_TO, counted
// from the beginning of `main` on. With FAIL_COUNT set, says at the end how many there were.
#include <dlfcn.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace {

using Main = int(int, char**, char**);
using StartMain = int(Main*, int, char**, void (*)(), void (*)(), void (*)(), void*);

std::atomic<bool> counting = false;
std::atomic<long> allocations = 0;
long firstToFail = 0;
long lastToFail = 0;
Main* programMain = nullptr;

long number(const char* name) {
    const char* const text = std::getenv(name);
    return text ? std::atol(text) : 0;
}

bool refused() {
    if (!counting)
        return false;
    const long each = ++allocations;
    if (each < firstToFail || each > lastToFail)
        return false;
    errno = ENOMEM;
    return true;
}

template <class Function> Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int countedMain(int argc, char** argv, char** environment) {
    firstToFail = number("FAIL_FROM");
    lastToFail = number("FAIL_TO");
    counting = true;
    const int result = programMain(argc, argv, environment);
    counting = false;
    if (std::getenv("FAIL_COUNT"))
        std::fprintf(stderr, "allocations %ld\n", allocations.load());
    return result;
}

} // namespace

// NOLINTBEGIN(readability-identifier-naming): the C library's names.
extern "C" {

// What the program's own allocator asks of the C library, and what asks the C library itself.
void* __libc_malloc(std::size_t size) {
    static const auto kNext = next<void*(std::size_t)>("__libc_malloc");
    return refused() ? nullptr : kNext(size);
}
void* __libc_calloc(std::size_t count, std::size_t size) {
    static const auto kNext = next<void*(std::size_t, std::size_t)>("__libc_calloc");
    return refused() ? nullptr : kNext(count, size);
}
void* __libc_realloc(void* block, std::size_t size) {
    static const auto kNext = next<void*(void*, std::size_t)>("__libc_realloc");
    return refused() ? nullptr : kNext(block, size);
}
void* __libc_memalign(std::size_t alignment, std::size_t size) {
    static const auto kNext = next<void*(std::size_t, std::size_t)>("__libc_memalign");
    return refused() ? nullptr : kNext(alignment, size);
}

// While a module is loaded nothing is refused: its global objects have nobody to tell.
void* dlopen(const char* file, int mode) {
    const bool before = counting.exchange(false);
    void* const module = next<void*(const char*, int)>("dlopen")(file, mode);
    counting = before;
    return module;
}

// The C library's beginning of a program, which calls `main`.
int __libc_start_main(Main* main, int argc, char** argv, void (*init)(), void (*fini)(), void (*finish)(),
                      void* stackEnd) {
    programMain = main;
    return next<StartMain>("__libc_start_main")(countedMain, argc, argv, init, fini, finish, stackEnd);
}
}
// NOLINTEND(readability-identifier-naming)
