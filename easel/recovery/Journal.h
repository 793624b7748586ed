// What is kept of a drawing with unsaved changes, for the case that the program ends without being asked to.
#pragma once

#include "easel/files/FileDescriptor.h"
#include "easel/files/Result.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace easel::recovery {

// Two files of one name in a folder of journals: NAME.svg, the drawing as it would be saved, and NAME.lock,
// which holds the path of the user's file and is locked as long as a program has the journal. Whatever
// happens, the drawing in it is whole: the one last kept, or the one before.
class Journal {
  public:
    // Makes a new journal, and the folder if need be. `origin` is the absolute path of the user's file; empty
    // for a drawing that has none yet.
    static files::Result<Journal> begin(const std::filesystem::path& folder,
                                        const std::filesystem::path& origin);
    // The journals in a folder that no program has, the latest first; from now on this one has them. Clears
    // away what holds no drawing.
    static std::vector<Journal> abandonedIn(const std::filesystem::path& folder);

    Journal(Journal&& other) noexcept = default;
    Journal& operator=(Journal&&) = delete;
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;
    // Leaves the journal to whoever looks for abandoned ones next, unless it was removed.
    ~Journal() = default;

    const std::filesystem::path& origin() const { return origin_; }
    // The file with the drawing, which is there once something was kept.
    const std::filesystem::path& drawing() const { return drawing_; }

    // The drawing that takes the place of what was kept before. What it throws for lack of memory, it throws
    // before anything is written.
    [[nodiscard]] files::Result<> keep(std::string_view bytes) const;
    // The drawing is saved or given up. Nothing if it was removed before.
    void remove();

  private:
    Journal(std::filesystem::path drawing, std::filesystem::path lock, std::filesystem::path origin,
            files::FileDescriptor locked)
        : drawing_(std::move(drawing)), lock_(std::move(lock)), origin_(std::move(origin)),
          locked_(std::move(locked)) {}

    std::filesystem::path drawing_;
    std::filesystem::path lock_;
    std::filesystem::path origin_;
    files::FileDescriptor locked_;
};

// The folder of this user's journals.
std::filesystem::path journalFolder();

} // namespace easel::recovery
