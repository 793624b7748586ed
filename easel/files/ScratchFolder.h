// A new folder of the system's temporary files that is gone, with all in it, when it goes out of scope.
#pragma once

#include "easel/files/Result.h"

#include <utility>

namespace easel::files {

class ScratchFolder {
  public:
    static Result<ScratchFolder> make();

    ScratchFolder(ScratchFolder&& other) noexcept : path_(std::exchange(other.path_, {})) {}
    ScratchFolder& operator=(ScratchFolder&&) = delete;
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    const std::filesystem::path& path() const { return path_; }

  private:
    explicit ScratchFolder(std::filesystem::path path) : path_(std::move(path)) {}

    std::filesystem::path path_;
};

} // namespace easel::files
