// The order of steps that keeps a pair of files whole.
//
// A file is there when its data fork is. A header file without one is nothing, so a new file's header comes
// first and a deleted file's header goes last. In between, a second name of the header file, a temporary one,
// marks it as part of a change: that is how `recoverFolder` tells it from a header file that somebody put
// there.
#include "easel/classic/PairCommit.h"

#include "easel/files/FolderLock.h"

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
files::OrFileError<PairInTrash> copyToTrash(const FilePair& file, const files::Trash& trash,
                                            files::Flushing flushing) {
    std::vector<fs::path> originals;
    for (const auto& path : {file.data(), file.header()})
        if (isThere(path))
            originals.push_back(path);
    auto reserved = trash.reserve(originals, flushing);
    if (const auto* const error = std::get_if<files::FileError>(&reserved))
        return *error;
    auto& place = std::get<files::TrashPlace>(reserved);
    for (std::size_t i = 0; i < originals.size(); ++i)
        if (auto failure = files::linkOrCopy(originals[i], place.files()[i]))
            return *failure;
    return PairInTrash{std::move(place), std::move(originals)};
}

files::FileOutcome unlinkFile(const fs::path& file) {
    if (::unlink(file.c_str()) != 0)
        return files::lastSystemError(file);
    return {};
}

// The header's rename decides: with it the name stands for the new content.
files::FileOutcome replaceInPlace(const FilePair& file, files::TemporaryFile header,
                                  files::TemporaryFile data, const files::Trash& trash) {
    auto copied = copyToTrash(file, trash, files::Flushing::AtOnce);
    if (const auto* const error = std::get_if<files::FileError>(&copied))
        return *error;
    if (auto failure = header.moveTo(file.header()))
        return failure;
    std::get<PairInTrash>(copied).place.keep();
    if (auto failure = data.moveTo(file.data()))
        return failure;
    return files::flushFolder(file.folder);
}

// The data fork's rename decides: without a data fork the header file is nothing.
files::FileOutcome createAnew(const FilePair& file, files::TemporaryFile header, files::TemporaryFile data) {
    // Without links there can be no marker; then a crash may leave a header file, which the next save
    // replaces.
    const bool isMarked = ::link(header.path().c_str(), file.header().c_str()) == 0;
    if (!isMarked)
        if (auto failure = header.moveTo(file.header()))
            return failure;
    auto failure = files::flushFolder(file.folder);
    if (!failure)
        failure = data.moveTo(file.data());
    if (failure) {
        ::unlink(file.header().c_str());
        return failure;
    }
    return files::flushFolder(file.folder);
}

// Removes header files that a marker names and that have no data fork.
void removeMarkedHeaders(const fs::path& folder, const fs::path& marker) {
    struct stat marked {};
    if (::lstat(marker.c_str(), &marked) != 0 || marked.st_nlink < 2)
        return;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const auto name = at->path().filename().string();
        struct stat status {};
        if (name.starts_with(kHeaderPrefix) && ::lstat(at->path().c_str(), &status) == 0 &&
            status.st_ino == marked.st_ino && !isThere(folder / name.substr(kHeaderPrefix.size())))
            ::unlink(at->path().c_str());
    }
}

} // namespace

files::FileOutcome writePair(const FilePair& file, const AppleDouble& header, const files::Trash& trash) {
    const files::FolderLock lock(file.folder);
    auto newHeader = files::TemporaryFile::write(file.folder, header.write());
    if (const auto* const error = std::get_if<files::FileError>(&newHeader))
        return *error;
    auto newData = files::TemporaryFile::write(file.folder, {});
    if (const auto* const error = std::get_if<files::FileError>(&newData))
        return *error;
    auto& temporaryHeader = std::get<files::TemporaryFile>(newHeader);
    auto& temporaryData = std::get<files::TemporaryFile>(newData);
    if (isThere(file.data()))
        return replaceInPlace(file, std::move(temporaryHeader), std::move(temporaryData), trash);
    // A header file that has lost its data fork is in the way, and may still be somebody's only copy.
    if (isThere(file.header()))
        if (auto failure = trash.move(file.header()))
            return failure;
    return createAnew(file, std::move(temporaryHeader), std::move(temporaryData));
}

files::FileOutcome trashPair(const FilePair& file, const files::Trash& trash, files::Flushing flushing) {
    const files::FolderLock lock(file.folder);
    if (!isThere(file.data()))
        return files::FileError{file.data(), "no such file",
                                std::make_error_code(std::errc::no_such_file_or_directory)};
    auto copied = copyToTrash(file, trash, flushing);
    if (const auto* const error = std::get_if<files::FileError>(&copied))
        return *error;
    auto marker = files::TemporaryFile::linkTo(file.header());
    // From here on the file is gone.
    if (auto failure = unlinkFile(file.data()))
        return failure;
    std::get<PairInTrash>(copied).place.keep();
    if (isThere(file.header()))
        if (auto failure = unlinkFile(file.header())) {
            if (marker)
                marker->leaveBehind();
            return failure;
        }
    return flushing == files::Flushing::AtOnce ? files::flushFolder(file.folder) : files::FileOutcome();
}

void recoverFolder(const fs::path& folder) {
    const files::FolderLock lock(folder);
    for (const auto& leftover : files::leftoversIn(folder)) {
        removeMarkedHeaders(folder, leftover);
        ::unlink(leftover.c_str());
    }
}

} // namespace easel::classic
