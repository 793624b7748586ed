// Tells what has changed in a folder since one last asked.
#pragma once

#include "easel/files/FileDescriptor.h"

#include <filesystem>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace easel::files {

class FolderWatch {
  public:
    // Watches that folder from now on, and none that was watched before.
    void start(const std::filesystem::path& folder);
    // The names of files that were made, written, renamed or removed there since the last call, in no order
    // and some perhaps repeatedly. Nothing where that is not known: the system cannot watch, too much has
    // happened, or the path leads to another folder now. Then the watch has to be started again.
    std::optional<std::vector<std::string>> changes();

    // Can be read from when there are changes; negative without a watch. Another one after each start.
    int descriptor() const { return events_.number(); }

    // Whether no change can escape the system: the folder is on this machine's own disk or in its memory.
    bool seesAll() const { return seesAll_; }

  private:
    struct Identity {
        dev_t device;
        ino_t number;
        bool operator==(const Identity&) const = default;
    };
    static std::optional<Identity> identityOf(const std::filesystem::path& folder);

    std::filesystem::path folder_;
    std::optional<Identity> watched_;
    FileDescriptor events_;
    bool seesAll_ = false;
};

} // namespace easel::files
