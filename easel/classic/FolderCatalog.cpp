// Numbers for folders, and the way from names to files.
#include "easel/classic/FolderCatalog.h"

#include "easel/classic/HostNames.h"
#include "easel/files/FolderReader.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace easel::classic {
namespace {

constexpr std::int16_t kVolume = -1;
// Ids count from the classic id of a volume's root.
constexpr std::int32_t kRootId = 2;

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 128; });
}

// The name on disk that stands for the host's name, where it is not the composed one.
std::optional<std::string> otherSpelling(const fs::path& folder, std::string_view hostName) {
    for (files::FolderReader entries(folder); entries.next();)
        if (nameInHost(entries.name()) == hostName)
            return entries.name();
    return std::nullopt;
}

} // namespace

FolderCatalog::FolderCatalog(fs::path preferences) : folders_{std::move(preferences)} {}

FileSpec FolderCatalog::secondaryFolder(std::string_view name) const {
    return {kVolume, kRootId, std::string(name)};
}

std::optional<fs::path> FolderCatalog::pathOf(const FileSpec& secondaryFolder) const {
    const auto name = nameOnDisk(secondaryFolder.name);
    return name ? std::optional(preferences() / *name) : std::nullopt;
}

FileResult FolderCatalog::resolve(std::int16_t volume, std::int64_t folder, std::string_view name,
                                  FileSpec& out) {
    const auto start = folderPath(volume, folder);
    if (!start)
        return volume == kVolume ? FileResult::NoSuchFolder : FileResult::NoSuchVolume;
    if (name.find(':') == std::string_view::npos)
        return resolveIn(static_cast<std::int32_t>(folder), name, out);
    // The folders in the preferences folder have no folders in them, so no path leads on from there, and none
    // leads up.
    const auto second = name.find(':', 1);
    if (folder != kRootId || name.front() != ':' || second == std::string_view::npos)
        return FileResult::BadName;
    const auto path = pathOf(secondaryFolder(name.substr(1, second - 1)));
    if (!path)
        return FileResult::BadName;
    std::error_code error;
    if (!fs::is_directory(*path, error))
        return FileResult::NoSuchFolder;
    return resolveIn(idOf(*path), name.substr(second + 1), out);
}

FileResult FolderCatalog::resolveIn(std::int32_t folder, std::string_view name, FileSpec& out) const {
    const FileSpec spec{kVolume, folder, std::string(name)};
    const auto file = place(spec);
    if (!file)
        return FileResult::BadName;
    out = spec;
    return exists(*file) ? FileResult::Done : FileResult::NoSuchFile;
}

std::optional<FilePair> FolderCatalog::place(const FileSpec& spec) const {
    const auto folder = folderPath(spec.volume, spec.folder);
    auto name = nameOnDisk(spec.name);
    if (!folder || !name)
        return std::nullopt;
    FilePair file{*folder, std::move(*name)};
    if (!isAscii(spec.name) && !exists(file))
        if (auto other = otherSpelling(*folder, spec.name))
            file.name = std::move(*other);
    return file;
}

std::optional<fs::path> FolderCatalog::folderPath(std::int16_t volume, std::int64_t folder) const {
    const auto index = folder - kRootId;
    if (volume != kVolume || index < 0 || index >= static_cast<std::int64_t>(folders_.size()))
        return std::nullopt;
    return folders_[static_cast<std::size_t>(index)];
}

std::int32_t FolderCatalog::idOf(const fs::path& folder) {
    const auto known = std::find(folders_.begin(), folders_.end(), folder);
    const auto index = known - folders_.begin();
    if (known == folders_.end())
        folders_.push_back(folder);
    return kRootId + static_cast<std::int32_t>(index);
}

} // namespace easel::classic
