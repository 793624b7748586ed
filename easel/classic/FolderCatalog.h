// The folders that host files live in, each known by a number, and how names lead to files in them.
#pragma once

#include "easel/classic/FilePair.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace easel::classic {

// Result codes of the host's file operations.
enum class FileResult : std::int16_t {
    Done = 0,
    NoSuchVolume = -35,
    IoError = -36,
    BadName = -37,
    NoSuchFile = -43,
    AlreadyExists = -48,
    NoSuchFolder = -120,
};

// A file as the host names it: volume, id of the folder it lies in, and name in Mac Roman.
struct FileSpec {
    std::int16_t volume = 0;
    std::int32_t folder = 0;
    std::string name;

    bool operator==(const FileSpec&) const = default;
};

// There is one volume: the preferences folder with the folders directly in it. Nothing outside has a name.
class FolderCatalog {
  public:
    explicit FolderCatalog(std::filesystem::path preferences);

    const std::filesystem::path& preferences() const { return folders_.front(); }

    // The folder of that name in the preferences folder, as a spec that names the folder itself. Its name
    // may be one that no folder can have; then nothing will ever resolve in it.
    FileSpec secondaryFolder(std::string_view name) const;
    // Where such a folder is on disk.
    std::optional<std::filesystem::path> pathOf(const FileSpec& secondaryFolder) const;

    // Resolves a name against a folder; from the preferences folder also ":FOLDER:NAME". `out` is filled for
    // Done and NoSuchFile only.
    FileResult resolve(std::int16_t volume, std::int64_t folder, std::string_view name, FileSpec& out);

    // Where a resolved file is, or would be, on disk; nothing for what was not resolved here. A file that
    // another system wrote with a decomposed name is found under the host's composed one.
    std::optional<FilePair> place(const FileSpec& spec) const;
    std::optional<std::filesystem::path> folderPath(std::int16_t volume, std::int64_t folder) const;

  private:
    FileResult resolveIn(std::int32_t folder, std::string_view name, FileSpec& out) const;
    std::int32_t idOf(const std::filesystem::path& folder);

    std::vector<std::filesystem::path> folders_; // the preferences folder first
};

} // namespace easel::classic
