// Listing a folder of host files: one pass over its names, one short read a header file.
#include "easel/toolbox/FolderListing.h"

#include "easel/toolbox/HostNames.h"

#include <algorithm>
#include <compare>
#include <unordered_set>

namespace fs = std::filesystem;

namespace easel::toolbox {
namespace {

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Names that differ in case only still have an order.
bool before(const ListedFile& a, const ListedFile& b) {
    const auto byLetter = std::lexicographical_compare_three_way(
        a.hostName.begin(), a.hostName.end(), b.hostName.begin(), b.hostName.end(), [](char x, char y) {
            return static_cast<unsigned char>(lowered(x)) <=> static_cast<unsigned char>(lowered(y));
        });
    return std::is_neq(byLetter) ? std::is_lt(byLetter) : a.hostName < b.hostName;
}

} // namespace

std::vector<ListedFile> listFolder(const fs::path& folder) {
    std::vector<ListedFile> files;
    std::unordered_set<std::string> headers;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        auto name = at->path().filename().string();
        if (name.starts_with("._"))
            headers.insert(name.substr(2));
        else if (auto hostName = nameInHost(name); hostName && at->is_regular_file(error))
            files.push_back({std::move(*hostName), {folder, std::move(name)}, {}});
        error.clear();
    }
    for (auto& file : files)
        if (headers.contains(file.file.name))
            file.info = readFinderInfo(file.file);
    std::sort(files.begin(), files.end(), before);
    return files;
}

} // namespace easel::toolbox
