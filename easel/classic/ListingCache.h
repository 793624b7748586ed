// The listing of a folder, kept up to date, for callers that ask for the whole to get at one file after
// another.
#pragma once

#include "easel/classic/FolderListing.h"
#include "easel/files/FolderWatch.h"

#include <chrono>
#include <cstdint>
#include <future>
#include <string>
#include <vector>

namespace easel::classic {

class ListingCache {
  public:
    // As `listFolder` would give it now. What the system tells of changes is looked at file by file. The
    // whole is read anew where it cannot tell. Of what other machines do to a shared folder, and of files
    // that links lead to, it tells nothing: there the whole is read anew when that was a second ago. Valid
    // until the next call.
    const std::vector<ListedFile>& list(const std::filesystem::path& folder);
    // Begins to read the folder on another thread, for a `list` that comes later.
    void prepare(const std::filesystem::path& folder);
    // Another number whenever the listing is another one than before.
    std::uint64_t revision() const { return revision_; }

  private:
    using Clock = std::chrono::steady_clock;

    void begin(const std::filesystem::path& folder);
    void take(FolderListing listing);
    bool mayBeOld() const;
    void lookAgain(std::string name);

    std::filesystem::path folder_;
    FolderListing listing_;
    std::future<FolderListing> coming_;
    files::FolderWatch watch_;
    std::uint64_t revision_ = 0;
    Clock::time_point read_;
};

} // namespace easel::classic
