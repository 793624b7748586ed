// Keeps a listing while the folder's time of change vouches for it.
#include "easel/toolbox/ListingCache.h"

#include <sys/stat.h>

namespace easel::toolbox {
namespace {

constexpr auto kLongest = std::chrono::seconds(1);
// Two changes so close together can have the same time.
constexpr double kTooClose = 0.05;

std::timespec changeOf(const std::filesystem::path& folder) {
    struct stat status {};
    return ::stat(folder.c_str(), &status) == 0 ? status.st_mtim : std::timespec{};
}

double secondsBetween(const std::timespec& a, const std::timespec& b) {
    return static_cast<double>(b.tv_sec - a.tv_sec) + static_cast<double>(b.tv_nsec - a.tv_nsec) * 1e-9;
}

bool same(const std::timespec& a, const std::timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

} // namespace

const std::vector<ListedFile>& ListingCache::list(const std::filesystem::path& folder) {
    const auto changed = changeOf(folder);
    if (isKept_ && folder == folder_ && same(changed, changed_) && Clock::now() - read_ < kLongest)
        return files_;
    std::timespec now{};
    std::timespec_get(&now, TIME_UTC);
    folder_ = folder;
    changed_ = changed;
    read_ = Clock::now();
    files_ = listFolder(folder);
    isKept_ = secondsBetween(changed, now) > kTooClose;
    return files_;
}

} // namespace easel::toolbox
