// Keeps a listing in step with its folder.
#include "easel/classic/ListingCache.h"

#include "easel/files/AtomicFile.h"

#include <algorithm>
#include <system_error>

namespace easel::classic {
namespace {

constexpr auto kLongest = std::chrono::seconds(1);
// Beyond so many, reading the whole again takes less time.
constexpr std::size_t kFewChanges = 64;

} // namespace

const std::vector<ListedFile>& ListingCache::list(const std::filesystem::path& folder) {
    if (coming_.valid())
        take(coming_.get());
    auto changes = watch_.changes();
    if (revision_ == 0 || folder != folder_ || !changes || changes->size() > kFewChanges || mayBeOld()) {
        begin(folder);
        take(listFolder(folder));
    } else {
        for (auto& name : *changes)
            lookAgain(std::move(name));
    }
    return listing_.files;
}

void ListingCache::prepare(const std::filesystem::path& folder) {
    if (coming_.valid())
        return;
    begin(folder);
    try {
        coming_ = std::async(std::launch::async, listFolder, folder);
    } catch (const std::system_error&) {
        // Without a thread to spare, whoever lists the folder reads it.
        folder_.clear();
    }
}

// Before the folder is read, so that what changes meanwhile is looked at again.
void ListingCache::begin(const std::filesystem::path& folder) {
    watch_.start(folder);
    read_ = Clock::now();
    folder_ = folder;
}

void ListingCache::take(FolderListing listing) {
    listing_ = std::move(listing);
    ++revision_;
}

bool ListingCache::mayBeOld() const {
    return (listing_.hasLinks || !watch_.seesAll()) && Clock::now() - read_ > kLongest;
}

void ListingCache::lookAgain(std::string name) {
    if (files::isTemporaryName(name))
        return;
    std::error_code error;
    listing_.hasLinks = listing_.hasLinks || std::filesystem::is_symlink(folder_ / name, error);
    if (name.starts_with(kHeaderPrefix))
        name.erase(0, kHeaderPrefix.size());
    auto& files = listing_.files;
    const auto listed = std::find_if(files.begin(), files.end(),
                                     [&](const ListedFile& file) { return file.file.name == name; });
    if (listed != files.end())
        files.erase(listed);
    if (auto file = listedFile({folder_, std::move(name)}))
        files.insert(std::upper_bound(files.begin(), files.end(), *file, isListedBefore), std::move(*file));
    ++revision_;
}

} // namespace easel::classic
