// Operations on host files, with deletions and creations put off until it is known what follows.
#include "easel/classic/HostFiles.h"

#include "easel/classic/PairCommit.h"
#include "easel/files/UserFolders.h"

#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

namespace easel::classic {
namespace {

files::Error noSuchFile(const std::string& name) {
    return {name, "no such file", std::make_error_code(std::errc::no_such_file_or_directory)};
}

AppleDouble newHeader(const FinderInfo& info) {
    AppleDouble header;
    header.setFinderInfo(info);
    header.setResourceFork({});
    return header;
}

} // namespace

StoragePlaces StoragePlaces::ofUser() {
    return {files::configurationFolder() / "kestrad", files::Trash::desktopHome()};
}

StoragePlaces StoragePlaces::within(const fs::path& folder) {
    return {folder, folder / "Trash"};
}

HostFiles::HostFiles(StoragePlaces places, ErrorReport report)
    : places_(std::move(places)), report_(std::move(report)), catalog_(places_.preferences),
      trash_(places_.trash) {
    recoverFolder(places_.preferences);
}

HostFiles::SecondaryFolder HostFiles::findSecondaryFolder(std::string_view name, FolderCreation creation) {
    settle();
    const auto spec = catalog_.secondaryFolder(name);
    const auto folder = catalog_.pathOf(spec);
    if (!folder)
        return {spec, tl::unexpected(files::Error{
                          places_.preferences / std::string(name), "not a name for a folder", {}})};
    std::error_code error;
    if (creation == FolderCreation::IfMissing)
        fs::create_directories(*folder, error);
    if (error)
        return {spec, tl::unexpected(files::Error{*folder, error.message(), error})};
    if (::access(folder->c_str(), W_OK | X_OK) != 0)
        return {spec, tl::unexpected(files::lastSystemError(*folder))};
    recoverFolder(*folder);
    lastFound_ = *folder;
    return {spec, {}};
}

void HostFiles::prepareListing() {
    if (lastFound_)
        listings_.prepare(*lastFound_);
}

FileResult HostFiles::resolve(std::int16_t volume, std::int64_t folder, std::string_view name,
                              FileSpec& out) {
    settle();
    return catalog_.resolve(volume, folder, name, out);
}

const std::vector<ListedFile>& HostFiles::list(std::int16_t volume, std::int64_t folder) {
    static const std::vector<ListedFile> kNothing;
    settle();
    const auto path = catalog_.folderPath(volume, folder);
    return path ? listings_.list(*path) : kNothing;
}

FileResult HostFiles::remove(const FileSpec& spec) {
    settle();
    const auto file = catalog_.place(spec);
    if (!file)
        return FileResult::BadName;
    if (!exists(*file))
        return FileResult::NoSuchFile;
    waiting_ = Waiting{*file, Deletion::First, {}};
    return FileResult::Done;
}

FileResult HostFiles::create(const FileSpec& spec, const FinderInfo& info) {
    const auto file = catalog_.place(spec);
    if (!file)
        return FileResult::BadName;
    if (waitsFor(*file) && !waiting_->creation) {
        waiting_->creation = info;
        return FileResult::Done;
    }
    settle();
    if (exists(*file))
        return FileResult::AlreadyExists;
    waiting_ = Waiting{*file, Deletion::None, info};
    return FileResult::Done;
}

files::Result<OpenedFile> HostFiles::open(const FileSpec& spec, Access access) {
    const auto file = catalog_.place(spec);
    if (!file)
        return tl::unexpected(noSuchFile(spec.name));
    if (access == Access::Write && waitsFor(*file) && waiting_->creation) {
        const auto info = *std::exchange(waiting_, std::nullopt)->creation;
        return OpenedFile{*file, newHeader(info), OpenedFile::State::Waiting};
    }
    settle();
    if (!exists(*file))
        return tl::unexpected(noSuchFile(file->data()));
    auto header = readHeader(*file);
    if (!header)
        return tl::unexpected(header.error());
    return OpenedFile{*file, std::move(*header), OpenedFile::State::OnDisk};
}

files::Result<> HostFiles::write(const OpenedFile& opened) {
    settle();
    // The folder may have been removed while the program ran.
    std::error_code ignored;
    fs::create_directories(opened.file.folder, ignored);
    return writePair(opened.file, opened.header, trash_);
}

void HostFiles::settle() {
    const auto waiting = std::exchange(waiting_, std::nullopt);
    if (!waiting)
        return;
    const auto changed = waiting->creation ? writePair(waiting->file, newHeader(*waiting->creation), trash_)
                                           : trashPair(waiting->file, trash_, flushing_);
    if (!changed)
        report_(changed.error());
}

void HostFiles::flushAll() {
    settle();
    flushing_ = files::Flushing::AtOnce;
    std::error_code ignored;
    for (const auto& folder : {places_.preferences, places_.trash})
        if (fs::is_directory(folder, ignored))
            if (const auto flushed = files::flushFileSystem(folder); !flushed)
                report_(flushed.error());
}

} // namespace easel::classic
