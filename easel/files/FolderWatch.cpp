// Watching a folder through the kernel's notices, which are there as soon as the change is.
#include "easel/files/FolderWatch.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <linux/magic.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace easel::files {
namespace {

constexpr std::uint32_t kFileChanged =
    IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_MODIFY | IN_ATTRIB;
constexpr std::uint32_t kFolderGone = IN_DELETE_SELF | IN_MOVE_SELF;
constexpr std::uint32_t kNoticesLost = IN_Q_OVERFLOW | IN_IGNORED | IN_UNMOUNT;

// The file systems known to be nobody else's; their numbers are those of statfs(2).
constexpr std::array kLocal{std::int64_t{EXT4_SUPER_MAGIC},  std::int64_t{XFS_SUPER_MAGIC},
                            std::int64_t{BTRFS_SUPER_MAGIC}, std::int64_t{F2FS_SUPER_MAGIC},
                            std::int64_t{TMPFS_MAGIC},       std::int64_t{OVERLAYFS_SUPER_MAGIC}};

bool isLocal(const std::filesystem::path& folder) {
    struct statfs status {};
    return ::statfs(folder.c_str(), &status) == 0 &&
           std::find(kLocal.begin(), kLocal.end(), std::int64_t{status.f_type}) != kLocal.end();
}

} // namespace

std::optional<FolderWatch::Identity> FolderWatch::identityOf(const std::filesystem::path& folder) {
    struct stat status {};
    if (::stat(folder.c_str(), &status) != 0)
        return std::nullopt;
    return Identity{status.st_dev, status.st_ino};
}

void FolderWatch::start(const std::filesystem::path& folder) {
    folder_ = folder;
    events_ = FileDescriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    if (events_ &&
        ::inotify_add_watch(events_.number(), folder.c_str(), kFileChanged | kFolderGone | IN_ONLYDIR) < 0)
        events_.close();
    watched_ = identityOf(folder);
    seesAll_ = isLocal(folder);
}

std::optional<std::vector<std::string>> FolderWatch::changes() {
    if (!events_ || identityOf(folder_) != watched_)
        return std::nullopt;
    std::vector<std::string> names;
    alignas(inotify_event) std::array<char, 16384> buffer;
    for (;;) {
        const auto got = ::read(events_.number(), buffer.data(), buffer.size());
        if (got <= 0)
            return names;
        for (std::size_t at = 0; at < static_cast<std::size_t>(got);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            if ((event.mask & (kFolderGone | kNoticesLost)) != 0)
                return std::nullopt;
            // The name is filled up with zeros.
            names.emplace_back(event.len > 0 ? buffer.data() + at + sizeof event : "");
            at += sizeof event + event.len;
        }
    }
}

} // namespace easel::files
