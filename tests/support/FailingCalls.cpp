// The program's own functions are found before those of the C library, from its libraries too.
#include "tests/support/FailingCalls.h"

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Plan {
    std::string_view name; // all calls of this name fail; empty: of none
    int error = 0;
    int number = 0; // and this one of the others; 0: none
    int errorOfNumber = 0;
    int count = 0;
};

thread_local Plan gPlan;
thread_local bool gIsActive = false;

bool fails(std::string_view name) {
    if (!gIsActive)
        return false;
    if (name == gPlan.name) {
        errno = gPlan.error;
        return true;
    }
    if (++gPlan.count != gPlan.number)
        return false;
    errno = gPlan.errorOfNumber;
    return true;
}

// Nothing has to last beyond a test, so that flushing, which takes long, is only pretended while calls may
// fail.
long flush(std::string_view name, long number, int file) {
    if (fails(name))
        return -1;
    return gIsActive ? 0 : ::syscall(number, file);
}

int openWith(const char* path, int flags, mode_t mode) {
    return fails("open") ? -1 : static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

} // namespace

namespace tests {

FailingCalls::FailingCalls(int number, int error) {
    gPlan = {{}, 0, number, error, 0};
    gIsActive = true;
}

FailingCalls::FailingCalls(std::string_view name, int error, int number, int errorOfThat) {
    gPlan = {name, error, number, errorOfThat, 0};
    gIsActive = true;
}

FailingCalls::~FailingCalls() {
    gIsActive = false;
}

bool FailingCalls::cameToNumber() {
    return gPlan.count >= gPlan.number;
}

} // namespace tests

extern "C" {

int link(const char* from, const char* to) noexcept {
    return fails("link") ? -1 : static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int unlink(const char* path) noexcept {
    return fails("unlink") ? -1 : static_cast<int>(::syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

int rename(const char* from, const char* to) noexcept {
    return fails("rename") ? -1 : static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int mkdir(const char* path, mode_t mode) noexcept {
    return fails("mkdir") ? -1 : static_cast<int>(::syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

int fsync(int file) {
    return static_cast<int>(flush("fsync", SYS_fsync, file));
}

int syncfs(int file) noexcept {
    return static_cast<int>(flush("syncfs", SYS_syncfs, file));
}

int flock(int file, int operation) noexcept {
    return fails("flock") ? -1 : static_cast<int>(::syscall(SYS_flock, file, operation));
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
    return fails("fchown") ? -1 : static_cast<int>(::syscall(SYS_fchown, file, owner, group));
}

int fchmod(int file, mode_t mode) noexcept {
    return fails("fchmod") ? -1 : static_cast<int>(::syscall(SYS_fchmod, file, mode));
}

ssize_t pread(int file, void* bytes, size_t count, off_t from) {
    return fails("pread") ? -1 : ::syscall(SYS_pread64, file, bytes, count, from);
}

ssize_t write(int file, const void* bytes, size_t count) {
    return fails("write") ? -1 : ::syscall(SYS_write, file, bytes, count);
}

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openWith(path, flags, mode);
}
}
