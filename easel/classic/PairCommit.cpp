// The order of steps that keeps a pair of files whole.
//
// A file is there when its data fork is. A header file without one is nothing, so a new file's header comes
// first and a deleted file's header goes last. In between, a second name of the header file, a temporary one,
// marks it as part of a change: that is how `recoverFolder` tells it from a header file that somebody put
// there.
#include "easel/classic/PairCommit.h"

#include "easel/files/FolderLock.h"
#include "easel/files/FolderReader.h"

#include <cerrno>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace easel::classic {
namespace {

bool isThere(const fs::path& file) {
    struct stat status {};
    return ::lstat(file.c_str(), &status) == 0;
}

struct PairInTrash {
    files::TrashPlace place;
    std::vector<fs::path> originals;
};

// Gives what is there of the pair names in the trash too. Until the place is kept, that can be undone.
files::Result<PairInTrash> copyToTrash(const FilePair& file, const files::Trash& trash,
                                       files::Flushing flushing) {
    std::vector<fs::path> originals;
    for (const auto& path : {file.data(), file.header()})
        if (isThere(path))
            originals.push_back(path);
    auto reserved = trash.reserve(originals, flushing);
    if (!reserved)
        return tl::unexpected(reserved.error());
    for (std::size_t i = 0; i < originals.size(); ++i)
        if (const auto copied = files::linkOrCopy(originals[i], reserved->files()[i]); !copied)
            return tl::unexpected(copied.error());
    return PairInTrash{std::move(*reserved), std::move(originals)};
}

files::Result<> unlinkFile(const fs::path& file) {
    if (::unlink(file.c_str()) != 0)
        return tl::unexpected(files::lastSystemError(file));
    return {};
}

// The header's rename decides: with it the name stands for the new content.
files::Result<> replaceInPlace(const FilePair& file, files::TemporaryFile header, files::TemporaryFile data,
                               const files::Trash& trash) {
    auto copied = copyToTrash(file, trash, files::Flushing::AtOnce);
    if (!copied)
        return tl::unexpected(copied.error());
    if (auto moved = header.moveTo(file.header()); !moved)
        return moved;
    copied->place.keep();
    if (auto moved = data.moveTo(file.data()); !moved)
        return moved;
    return files::flushFolder(file.folder);
}

// The data fork's rename decides: without a data fork the header file is nothing.
files::Result<> createAnew(const FilePair& file, files::TemporaryFile header, files::TemporaryFile data) {
    // Without links there can be no marker; then a crash may leave a header file, which the next save
    // replaces.
    const bool isMarked = ::link(header.path().c_str(), file.header().c_str()) == 0;
    if (!isMarked)
        if (auto moved = header.moveTo(file.header()); !moved)
            return moved;
    auto decided = files::flushFolder(file.folder);
    if (decided)
        decided = data.moveTo(file.data());
    if (!decided) {
        ::unlink(file.header().c_str());
        return decided;
    }
    return files::flushFolder(file.folder);
}

// Removes header files that a marker names and that have no data fork.
void removeMarkedHeaders(const fs::path& folder, const fs::path& marker) {
    struct stat marked {};
    if (::lstat(marker.c_str(), &marked) != 0 || marked.st_nlink < 2)
        return;
    for (files::FolderReader entries(folder); entries.next();) {
        const std::string name = entries.name();
        const fs::path file = folder / name;
        struct stat status {};
        if (name.starts_with(kHeaderPrefix) && ::lstat(file.c_str(), &status) == 0 &&
            status.st_ino == marked.st_ino && !isThere(folder / name.substr(kHeaderPrefix.size())))
            ::unlink(file.c_str());
    }
}

} // namespace

files::Result<> writePair(const FilePair& file, const AppleDouble& header, const files::Trash& trash) {
    const files::FolderLock lock(file.folder);
    auto newHeader = files::TemporaryFile::write(file.folder, header.write());
    if (!newHeader)
        return tl::unexpected(newHeader.error());
    auto newData = files::TemporaryFile::write(file.folder, {});
    if (!newData)
        return tl::unexpected(newData.error());
    if (isThere(file.data()))
        return replaceInPlace(file, std::move(*newHeader), std::move(*newData), trash);
    // A header file that has lost its data fork is in the way, and may still be somebody's only copy.
    if (isThere(file.header()))
        if (auto moved = trash.move(file.header()); !moved)
            return moved;
    return createAnew(file, std::move(*newHeader), std::move(*newData));
}

files::Result<> trashPair(const FilePair& file, const files::Trash& trash, files::Flushing flushing) {
    const files::FolderLock lock(file.folder);
    if (!isThere(file.data()))
        return tl::unexpected(files::Error{file.data(), "no such file",
                                           std::make_error_code(std::errc::no_such_file_or_directory)});
    auto copied = copyToTrash(file, trash, flushing);
    if (!copied)
        return tl::unexpected(copied.error());
    auto marker = files::TemporaryFile::linkTo(file.header());
    // From here on the file is gone.
    if (auto gone = unlinkFile(file.data()); !gone)
        return gone;
    copied->place.keep();
    if (isThere(file.header()))
        if (auto gone = unlinkFile(file.header()); !gone) {
            if (marker)
                marker->leaveBehind();
            return gone;
        }
    return flushing == files::Flushing::AtOnce ? files::flushFolder(file.folder) : files::Result<>();
}

void recoverFolder(const fs::path& folder) {
    const files::FolderLock lock(folder);
    for (const auto& leftover : files::leftoversIn(folder)) {
        removeMarkedHeaders(folder, leftover);
        ::unlink(leftover.c_str());
    }
}

} // namespace easel::classic
