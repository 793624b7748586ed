// The files of one type in a folder as the records of the host interface.
#pragma once

#include "easel/classic/HostFiles.h"
#include "host/Files.h"

#include <optional>
#include <span>
#include <vector>

namespace easel::runtime {

// Keeps the records for as long as the folder's listing stays the same: callers ask for all of them to get at
// one.
class Enumeration {
  public:
    // Records of the files of that type in the order of the listing. Valid until the next call.
    std::span<const FSSpec> records(classic::HostFiles& files, short volume, long folder, OSType type);

  private:
    struct Question {
        std::uint64_t revision;
        short volume;
        long folder;
        OSType type;
        bool operator==(const Question&) const = default;
    };

    std::optional<Question> asked_;
    std::vector<FSSpec> records_;
};

} // namespace easel::runtime
