// What is in a folder. The standard library's iterator would end the program where memory runs out.
#pragma once

#include <dirent.h>

#include <filesystem>
#include <memory>

namespace easel::files {

class FolderReader {
  public:
    // A folder that cannot be read is as if nothing were in it.
    explicit FolderReader(const std::filesystem::path& folder) : folder_(::opendir(folder.c_str())) {}

    // Goes on to the next entry, in no order; "." and ".." are left out. False after the last.
    bool next();
    // Of the entry; the name stays until `next`.
    const char* name() const { return entry_->d_name; }
    bool isLink() const;
    // Links count as what they lead to.
    bool isRegularFile() const;

  private:
    struct Closing {
        void operator()(DIR* folder) const { ::closedir(folder); }
    };

    std::unique_ptr<DIR, Closing> folder_;
    const dirent* entry_ = nullptr;
};

} // namespace easel::files
