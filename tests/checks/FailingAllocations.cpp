// Loaded ahead of a program's libraries, refuses memory: the allocations number FAIL_FROM to FAIL_TO, counted
// from the beginning of `main` on. With FAIL_COUNT set, says at the end how many there were.
#include <dlfcn.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

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

extern "C" {

void* malloc(std::size_t size) {
    return refused() ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    return refused() ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) {
    return refused() ? nullptr : __libc_realloc(block, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return refused() ? nullptr : __libc_memalign(alignment, size);
}

// While a module is loaded nothing is refused: its global objects have nobody to tell.
void* dlopen(const char* file, int mode) {
    const bool before = counting.exchange(false);
    void* const module =
        reinterpret_cast<void* (*)(const char*, int)>(dlsym(RTLD_NEXT, "dlopen"))(file, mode);
    counting = before;
    return module;
}

// The C library's beginning of a program, which calls `main`.
int __libc_start_main(Main* main, int argc, char** argv, void (*init)(), void (*fini)(), void (*finish)(),
                      void* stackEnd) {
    programMain = main;
    void* const next = dlsym(RTLD_NEXT, "__libc_start_main");
    return reinterpret_cast<StartMain*>(next)(countedMain, argc, argv, init, fini, finish, stackEnd);
}
}
