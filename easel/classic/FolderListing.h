// What lies in a folder of host files.
#pragma once

#include "easel/classic/FilePair.h"

#include <optional>
#include <string>
#include <vector>

namespace easel::classic {

struct ListedFile {
    std::string hostName; // Mac Roman
    FilePair file;
    FinderInfo info;
};

struct FolderListing {
    std::vector<ListedFile> files;
    bool hasLinks = false; // whether what is elsewhere has a part in it
};

// The files directly in the folder that the host can name, in the order of their names, upper and lower case
// alike. Of each file no more is read than tells its type; folders, links to nowhere and header files are no
// files.
FolderListing listFolder(const std::filesystem::path& folder);

// One file of such a listing; nothing where it would not be in it.
std::optional<ListedFile> listedFile(FilePair file);
// The listing's order.
bool isListedBefore(const ListedFile& a, const ListedFile& b);

} // namespace easel::classic
