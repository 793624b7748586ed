// The listing of a folder, kept for a moment, for callers that ask for the whole to get at one file after
// another.
#pragma once

#include "easel/toolbox/FolderListing.h"

#include <chrono>
#include <ctime>

namespace easel::toolbox {

class ListingCache {
  public:
    /// As `listFolder` gives it. Read anew when the folder has changed, when it may have changed without its
    /// time of change showing it, and when the listing is a second old.
    const std::vector<ListedFile>& list(const std::filesystem::path& folder);
    /// To be called when this program changes a folder.
    void forget() { isKept_ = false; }

  private:
    using Clock = std::chrono::steady_clock;

    std::filesystem::path folder_;
    std::vector<ListedFile> files_;
    std::timespec changed_{};
    Clock::time_point read_;
    bool isKept_ = false;
};

} // namespace easel::toolbox
