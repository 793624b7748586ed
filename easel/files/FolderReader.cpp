#include "easel/files/FolderReader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <string_view>

namespace easel::files {

namespace {

// The kind of an entry as `stat` has it; 0 where it cannot be told.
mode_t kindOf(DIR* folder, const char* name, int flags) {
    struct stat status {};
    return ::fstatat(::dirfd(folder), name, &status, flags) == 0 ? status.st_mode & S_IFMT : 0;
}

} // namespace

bool FolderReader::next() {
    while (folder_) {
        // Each reader has a folder stream of its own, so that threads do not meet.
        entry_ = ::readdir(folder_.get()); // NOLINT(concurrency-mt-unsafe)
        if (!entry_)
            return false;
        const std::string_view found = entry_->d_name;
        if (found != "." && found != "..")
            return true;
    }
    return false;
}

// Some file systems do not say what an entry is.
bool FolderReader::isLink() const {
    return entry_->d_type == DT_LNK ||
           (entry_->d_type == DT_UNKNOWN &&
            kindOf(folder_.get(), entry_->d_name, AT_SYMLINK_NOFOLLOW) == S_IFLNK);
}

bool FolderReader::isRegularFile() const {
    if (entry_->d_type != DT_LNK && entry_->d_type != DT_UNKNOWN)
        return entry_->d_type == DT_REG;
    return kindOf(folder_.get(), entry_->d_name, 0) == S_IFREG;
}

} // namespace easel::files
