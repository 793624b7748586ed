// Keeps a listing in step with its folder.
#include "easel/toolbox/ListingCache.h"

#include "easel/toolbox/AtomicFile.h"

#include <algorithm>

namespace easel::toolbox {
namespace {

constexpr auto kLongest = std::chrono::seconds(1);
// Beyond so many, reading the whole again takes less time.
constexpr std::size_t kFewChanges = 64;

} // namespace

const std::vector<ListedFile>& ListingCache::list(const std::filesystem::path& folder) {
    auto changes = watch_.changes();
    if (revision_ == 0 || folder != folder_ || !changes || changes->size() > kFewChanges ||
        Clock::now() - read_ > kLongest)
        readAnew(folder);
    else
        for (auto& name : *changes)
            lookAgain(std::move(name));
    return files_;
}

void ListingCache::readAnew(const std::filesystem::path& folder) {
    // In this order: what changes while the folder is read is looked at again.
    watch_.start(folder);
    read_ = Clock::now();
    folder_ = folder;
    files_ = listFolder(folder);
    ++revision_;
}

void ListingCache::lookAgain(std::string name) {
    if (isTemporaryName(name))
        return;
    if (name.starts_with(kHeaderPrefix))
        name.erase(0, kHeaderPrefix.size());
    const auto listed = std::find_if(files_.begin(), files_.end(),
                                     [&](const ListedFile& file) { return file.file.name == name; });
    if (listed != files_.end())
        files_.erase(listed);
    if (auto file = listedFile({folder_, std::move(name)}))
        files_.insert(std::upper_bound(files_.begin(), files_.end(), *file, isListedBefore),
                      std::move(*file));
    ++revision_;
}

} // namespace easel::toolbox
