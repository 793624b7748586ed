// Tells all who have one file open of each other.
#pragma once

#include "easel/files/FileDescriptor.h"
#include "easel/files/Result.h"

#include <filesystem>
#include <string>

namespace easel::recovery {

// A locked and empty file in a folder that all programs look at, whose name begins with a number made of the
// path of the file that is used. It vanishes with the object; what a crash leaves of it counts no more.
class FileUse {
  public:
    // `file` is absolute and exists, or not yet. Links to one file are one file.
    static files::Result<FileUse> begin(const std::filesystem::path& folder,
                                        const std::filesystem::path& file);

    FileUse(FileUse&& other) noexcept = default;
    FileUse& operator=(FileUse&&) = delete;
    FileUse(const FileUse&) = delete;
    FileUse& operator=(const FileUse&) = delete;
    ~FileUse();

    // Whether somebody else uses the file at this moment: in this program or in another one.
    bool isShared() const;

  private:
    FileUse(std::filesystem::path mark, files::FileDescriptor locked)
        : mark_(std::move(mark)), locked_(std::move(locked)) {}

    std::filesystem::path mark_;
    files::FileDescriptor locked_;
};

// The folder where this user's programs say what they use.
std::filesystem::path useFolder();

} // namespace easel::recovery
