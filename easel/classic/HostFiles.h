// The host's operations on files: resolving, listing, deleting, making and writing them.
//
// Replacing a file takes a caller several operations: delete, make, open, write, close. On disk they are one
// change, or a crash between them would lose the old file without there being a new one. So a deletion and
// the making of a file wait until it is known what follows: `open` takes a waiting change over and `write`
// carries it out; every other operation carries it out first, and so must whoever is about to end the program
// (`settle`).
#pragma once

#include "easel/classic/FolderCatalog.h"
#include "easel/classic/ListingCache.h"
#include "easel/files/Trash.h"

#include <functional>
#include <optional>
#include <vector>

namespace easel::classic {

// Where a user's things are kept on this machine.
struct StoragePlaces {
    std::filesystem::path preferences;
    std::filesystem::path trash; // the home trash

    // `$XDG_CONFIG_HOME/kestrad`, and the trash of the desktop.
    static StoragePlaces ofUser();
    // Everything in that one folder, the trash too, so that it can be thrown away as a whole.
    static StoragePlaces within(const std::filesystem::path& folder);
};

enum class FolderCreation { IfMissing, Never };
enum class Access { Read, Write };

// A file that is open: where it is on disk, and what its header file holds or will hold.
struct OpenedFile {
    enum class State {
        OnDisk,
        Waiting, // was just made; it comes to be when it is written
    };

    FilePair file;
    AppleDouble header;
    State state = State::OnDisk;
};

class HostFiles {
  public:
    // Called with what a waiting change failed with, since whoever asked for it is no longer there to be
    // told.
    using ErrorReport = std::function<void(const files::Error&)>;

    // Clears away what a crash of an earlier run left in the preferences folder.
    HostFiles(StoragePlaces places, ErrorReport report);
    ~HostFiles() { settle(); }
    HostFiles(const HostFiles&) = delete;
    HostFiles& operator=(const HostFiles&) = delete;

    // A spec of the folder in the preferences folder, which the caller gets in any case, and whether files
    // can be made there.
    struct SecondaryFolder {
        FileSpec spec;
        files::Result<> usable;
    };
    SecondaryFolder findSecondaryFolder(std::string_view name, FolderCreation creation);

    FileResult resolve(std::int16_t volume, std::int64_t folder, std::string_view name, FileSpec& out);
    // Valid until the next operation.
    const std::vector<ListedFile>& list(std::int16_t volume, std::int64_t folder);
    // Begins to list the folder last found, on another thread, so that listing it later takes no time.
    void prepareListing();
    // Another number whenever `list` gave something else than before.
    std::uint64_t listingRevision() const { return listings_.revision(); }
    FileResult remove(const FileSpec& spec);
    FileResult create(const FileSpec& spec, const FinderInfo& info);
    files::Result<OpenedFile> open(const FileSpec& spec, Access access);
    // Writes a file that was opened, in place of what is there by now.
    [[nodiscard]] files::Result<> write(const OpenedFile& file);
    // Carries out what is waiting.
    void settle();

    // While one lives, changes are not flushed one by one; when it goes, all are.
    class ManyChanges {
      public:
        explicit ManyChanges(HostFiles& files) : files_(files) { files_.flushing_ = files::Flushing::Later; }
        ManyChanges(const ManyChanges&) = delete;
        ManyChanges& operator=(const ManyChanges&) = delete;
        ~ManyChanges() { files_.flushAll(); }

      private:
        HostFiles& files_;
    };

    const StoragePlaces& places() const { return places_; }

  private:
    enum class Deletion { None, First };
    struct Waiting {
        FilePair file;
        Deletion deletion = Deletion::None;
        std::optional<FinderInfo> creation;
    };

    void flushAll();
    bool waitsFor(const FilePair& file) const { return waiting_ && waiting_->file == file; }

    StoragePlaces places_;
    ErrorReport report_;
    FolderCatalog catalog_;
    files::Trash trash_;
    std::optional<Waiting> waiting_;
    ListingCache listings_;
    std::optional<std::filesystem::path> lastFound_;
    files::Flushing flushing_ = files::Flushing::AtOnce;
};

} // namespace easel::classic
