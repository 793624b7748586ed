// Keeps other Easels from changing a folder's files while this one does.
#pragma once

#include "easel/files/FileDescriptor.h"

#include <filesystem>

namespace easel::files {

// Waits for its turn, a few seconds at most: better to go on than to hang on a program that has stopped.
// Where the file system knows no locks, there is nothing to wait for. Every single step is safe without the
// lock; it is for what takes several.
class FolderLock {
  public:
    explicit FolderLock(const std::filesystem::path& folder);

  private:
    FileDescriptor open_;
};

} // namespace easel::files
