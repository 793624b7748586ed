// Locking a folder by an advisory lock on the folder itself, so that no lock file lies about.
#include "easel/files/FolderLock.h"

#include <cerrno>
#include <chrono>
#include <sys/file.h>
#include <thread>

namespace easel::files {

FolderLock::FolderLock(const std::filesystem::path& folder)
    : open_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    while (open_ && ::flock(open_.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
           std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(2ms);
}

} // namespace easel::files
