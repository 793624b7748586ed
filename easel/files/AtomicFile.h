// Writing a file so that it holds the old content or the new one, whole, at every moment.
#pragma once

#include "easel/files/FileDescriptor.h"
#include "easel/files/Result.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace easel::files {

// Gives `file` that content, making it if it is missing. A link is followed and stays one; the permissions
// of a file that was there are kept. After an error the old content is still in place (or, if only the flush
// of the folder failed, the new one is).
[[nodiscard]] Result<> replaceFile(const std::filesystem::path& file, std::span<const std::uint8_t> content);
[[nodiscard]] Result<> replaceFile(const std::filesystem::path& file, std::string_view content);

// Whether a file of that name is one of our temporaries.
bool isTemporaryName(std::string_view name);

// Makes sure that the names in the folder survive a loss of power.
[[nodiscard]] Result<> flushFolder(const std::filesystem::path& folder);

// For one change among many: whoever makes them puts the flushing off and does it once at the end.
enum class Flushing { AtOnce, Later };
// Makes sure that everything in the folder's file system survives a loss of power.
[[nodiscard]] Result<> flushFileSystem(const std::filesystem::path& folder);

// A complete and flushed file that waits in a folder to be renamed, and vanishes if that never comes to
// pass. While it lives, it is locked, so that another program can tell it from what a crash left behind.
class TemporaryFile {
  public:
    // The mode of a new file, before the user's mask.
    static constexpr unsigned kOrdinaryMode = 0666;

    static Result<TemporaryFile> write(const std::filesystem::path& folder,
                                       std::span<const std::uint8_t> content);

    // A temporary second name for a file, in its folder; nothing where the file system has no such names.
    static std::optional<TemporaryFile> linkTo(const std::filesystem::path& file);

    TemporaryFile(TemporaryFile&& other) noexcept = default;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::filesystem::path& path() const { return path_; }
    const FileDescriptor& descriptor() const { return open_; }
    // Takes the place of `target`, which lies in the same folder.
    [[nodiscard]] Result<> moveTo(const std::filesystem::path& target);
    // Lets go of the file as a crash would: the next start clears it away.
    void leaveBehind() { open_.close(); }

  private:
    TemporaryFile(std::filesystem::path path, FileDescriptor open)
        : path_(std::move(path)), open_(std::move(open)) {}

    std::filesystem::path path_;
    FileDescriptor open_; // holds the lock; none once the file was moved
};

// The temporaries in a folder that no running program holds.
std::vector<std::filesystem::path> leftoversIn(const std::filesystem::path& folder);

// Removes what saves that were cut off left in the folder. Failures are of no consequence.
void removeLeftovers(const std::filesystem::path& folder);

} // namespace easel::files
