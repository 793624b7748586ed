// Compares identity, size and time first, and the content where these differ.
#include "easel/files/KnownFile.h"

#include "easel/files/WholeFile.h"

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace easel::files {

KnownFile::KnownFile(std::filesystem::path file) : file_(std::move(file)), look_(lookAt(file_)) {}

std::optional<KnownFile::Look> KnownFile::lookAt(const std::filesystem::path& file) {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0)
        return std::nullopt;
    return Look{status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void KnownFile::setContent(std::string_view content) {
    size_ = content.size();
    hash_ = std::hash<std::string_view>()(content);
}

bool KnownFile::isContent(std::string_view content) const {
    return content.size() == size_ && std::hash<std::string_view>()(content) == hash_;
}

KnownFile::Fate KnownFile::look() {
    return file_.empty() || (look_ && lookAt(file_) == look_) ? Fate::Same : lookInto();
}

KnownFile::Fate KnownFile::lookInto() {
    if (file_.empty())
        return Fate::Same;
    const std::optional<Look> now = lookAt(file_);
    if (!now)
        return Fate::Gone;
    if (static_cast<std::size_t>(now->size) != size_)
        return Fate::Changed;
    const auto content = readWholeFile(file_);
    if (!content)
        return Fate::Changed;
    if (!isContent(charactersOf(*content)))
        return Fate::Changed;
    look_ = now;
    return Fate::Same;
}

bool isWriteProtected(const std::filesystem::path& file) {
    constexpr mode_t kAnyWrites = S_IWUSR | S_IWGRP | S_IWOTH;
    struct stat status {};
    return ::stat(file.c_str(), &status) == 0 &&
           ((status.st_mode & kAnyWrites) == 0 || ::euidaccess(file.c_str(), W_OK) != 0);
}

} // namespace easel::files
