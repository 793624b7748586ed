// An open file of the system, closed when it goes out of scope.
#pragma once

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace easel::files {

class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (number_ >= 0)
            ::close(number_);
    }

    int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    // Closes now; false where the system reports that something written earlier was lost.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_ = -1;
};

} // namespace easel::files
