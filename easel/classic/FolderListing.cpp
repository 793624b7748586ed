// Listing a folder of host files: one pass over its names, one short read a header file.
#include "easel/classic/FolderListing.h"

#include "easel/classic/HostNames.h"
#include "easel/files/FolderReader.h"
#include "easel/text/Ascii.h"

#include <algorithm>
#include <compare>
#include <tuple>
#include <unordered_set>

namespace fs = std::filesystem;

namespace easel::classic {

FolderListing listFolder(const fs::path& folder) {
    FolderListing listing;
    auto& listed = listing.files;
    std::unordered_set<std::string> headers;
    for (files::FolderReader entries(folder); entries.next();) {
        std::string name = entries.name();
        listing.hasLinks = listing.hasLinks || entries.isLink();
        if (name.starts_with(kHeaderPrefix))
            headers.insert(name.substr(kHeaderPrefix.size()));
        else if (auto hostName = nameInHost(name); hostName && entries.isRegularFile())
            listed.push_back({std::move(*hostName), {folder, std::move(name)}, {}});
    }
    for (auto& file : listed)
        if (headers.contains(file.file.name))
            file.info = readFinderInfo(file.file);
    std::sort(listed.begin(), listed.end(), isListedBefore);
    return listing;
}

std::optional<ListedFile> listedFile(FilePair file) {
    auto hostName = nameInHost(file.name);
    if (!hostName || !exists(file))
        return std::nullopt;
    const auto info = readFinderInfo(file);
    return ListedFile{std::move(*hostName), std::move(file), info};
}

bool isListedBefore(const ListedFile& a, const ListedFile& b) {
    const auto byLetter = std::lexicographical_compare_three_way(
        a.hostName.begin(), a.hostName.end(), b.hostName.begin(), b.hostName.end(), [](char x, char y) {
            return static_cast<unsigned char>(text::lowerCase(x)) <=>
                   static_cast<unsigned char>(text::lowerCase(y));
        });
    // Names that differ in case only have an order too, and so have two spellings of one name on disk.
    return std::is_neq(byLetter) ? std::is_lt(byLetter)
                                 : std::tie(a.hostName, a.file.name) < std::tie(b.hostName, b.file.name);
}

} // namespace easel::classic
