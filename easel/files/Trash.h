// The desktop's trash, as the freedesktop.org trash specification (version 1.0) lays it out.
#pragma once

#include "easel/files/AtomicFile.h"

#include <span>
#include <string>
#include <vector>

namespace easel::files {

// Names kept free in a trash for files that belong together, with the notes that tell where each came from.
// The caller puts files under the names and then keeps the place; otherwise it is cleared away again.
class TrashPlace {
  public:
    TrashPlace(TrashPlace&& other) noexcept = default;
    TrashPlace& operator=(TrashPlace&&) = delete;
    TrashPlace(const TrashPlace&) = delete;
    TrashPlace& operator=(const TrashPlace&) = delete;
    ~TrashPlace();

    // One name for each file asked for, in the same order, none of them taken yet.
    const std::vector<std::filesystem::path>& files() const { return files_; }
    void keep();

  private:
    friend class Trash;
    TrashPlace() = default;
    Result<> add(const std::filesystem::path& trash, const std::string& name, const std::string& note,
                 Flushing flushing);

    std::vector<std::filesystem::path> files_;
    std::vector<std::filesystem::path> notes_;
};

class Trash {
  public:
    // `home` is the user's own trash; files on other devices go to a trash on theirs where one can be had.
    explicit Trash(std::filesystem::path home) : home_(std::move(home)) {}

    // The trash of the user's desktop: `$XDG_DATA_HOME/Trash`, usually `~/.local/share/Trash`.
    static std::filesystem::path desktopHome();

    // Room for files that lie in one folder and stay together: all get the same number when a name is taken.
    // A name that begins with "._" is numbered like the name behind it.
    Result<TrashPlace> reserve(std::span<const std::filesystem::path> originals,
                               Flushing flushing = Flushing::AtOnce) const;

    // Moves one file there.
    [[nodiscard]] Result<> move(const std::filesystem::path& file) const;

  private:
    std::filesystem::path home_;
};

// Puts the file under `place`, so that both names hold its content: the same file where the file system
// allows, else a flushed copy.
[[nodiscard]] Result<> linkOrCopy(const std::filesystem::path& file, const std::filesystem::path& place);

} // namespace easel::files
