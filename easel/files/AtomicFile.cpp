// Writing a file by way of a temporary one: write, flush, rename, flush the folder.
#include "easel/files/AtomicFile.h"

#include "easel/files/FolderReader.h"
#include <cerrno>
#include <random>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace easel::files {
namespace {

constexpr std::string_view kPrefix = ".easel-save-";
constexpr std::size_t kDigits = 16;
constexpr char kSuffix = '~';

std::string newTemporaryName() {
    thread_local std::mt19937_64 random{std::random_device{}() ^ static_cast<std::uint64_t>(::getpid())
                                                                     << 32};
    constexpr std::string_view kHex = "0123456789abcdef";
    std::string name(kPrefix);
    for (auto bits = random(); name.size() < kPrefix.size() + kDigits; bits >>= 4)
        name += kHex[bits & 15];
    return name + kSuffix;
}

// Another program's clean-up may come between making the file and locking it; then the file has no name any
// more.
bool stillNamed(const FileDescriptor& open) {
    struct stat status {};
    return ::fstat(open.number(), &status) == 0 && status.st_nlink > 0;
}

// Where locks are not to be had, saving goes on without; only the clean-up then cannot tell, and takes
// nothing.
FileDescriptor createLocked(const fs::path& file) {
    FileDescriptor open(
        ::open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, TemporaryFile::kOrdinaryMode));
    if (open)
        ::flock(open.number(), LOCK_EX | LOCK_NB);
    return open;
}

bool writeAll(const FileDescriptor& open, std::span<const std::uint8_t> content) {
    while (!content.empty()) {
        const auto done = ::write(open.number(), content.data(), content.size());
        if (done < 0 && errno == EINTR)
            continue;
        if (done < 0)
            return false;
        content = content.subspan(static_cast<std::size_t>(done));
    }
    return true;
}

// The owner and group are kept where the system lets us; the permissions always.
bool takeOverPermissions(const TemporaryFile& file, const fs::path& old) {
    struct stat status {};
    if (::stat(old.c_str(), &status) != 0)
        return errno == ENOENT;
    const int number = file.descriptor().number();
    if (::fchown(number, status.st_uid, status.st_gid) != 0 &&
        ::fchown(number, static_cast<uid_t>(-1), status.st_gid) != 0)
        return ::fchmod(number, status.st_mode & 0777) == 0;
    return ::fchmod(number, status.st_mode & 07777) == 0;
}

// The file that a chain of links leads to, which need not exist.
fs::path behindLinks(fs::path file) {
    constexpr int kLongestChain = 40;
    for (int i = 0; i < kLongestChain; ++i) {
        std::error_code error;
        const auto target = fs::read_symlink(file, error);
        if (error)
            break;
        file = file.parent_path() / target;
    }
    return file;
}

fs::path folderOf(const fs::path& file) {
    const auto folder = file.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

// Pipes, terminals and the like are written to, never replaced.
bool isStream(const fs::path& file) {
    struct stat status {};
    return ::stat(file.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

Result<> writeToStream(const fs::path& file, std::span<const std::uint8_t> content) {
    FileDescriptor open(::open(file.c_str(), O_WRONLY | O_CLOEXEC));
    if (!open || !writeAll(open, content) || !open.close())
        return tl::unexpected(lastSystemError(file));
    return {};
}

// A folder is looked through at the first save into it: what an earlier run left is old by then.
void removeLeftoversOnce(const fs::path& folder) {
    static std::set<fs::path> done;
    std::error_code error;
    if (done.insert(fs::absolute(folder, error)).second)
        removeLeftovers(folder);
}

} // namespace

Result<TemporaryFile> TemporaryFile::write(const fs::path& folder, std::span<const std::uint8_t> content) {
    constexpr int kTries = 20;
    for (int i = 0; i < kTries; ++i) {
        const auto path = folder / newTemporaryName();
        FileDescriptor open = createLocked(path);
        if (!open && errno == EEXIST)
            continue;
        if (!open)
            return tl::unexpected(lastSystemError(folder));
        if (!stillNamed(open))
            continue;
        TemporaryFile file(path, std::move(open));
        if (!writeAll(file.open_, content) || ::fsync(file.open_.number()) != 0)
            return tl::unexpected(lastSystemError(path));
        return file;
    }
    return tl::unexpected(Error{folder, "no name for a temporary file could be found",
                                std::make_error_code(std::errc::file_exists)});
}

std::optional<TemporaryFile> TemporaryFile::linkTo(const fs::path& file) {
    const auto path = folderOf(file) / newTemporaryName();
    if (::link(file.c_str(), path.c_str()) != 0)
        return std::nullopt;
    TemporaryFile marker(
        path, FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK)));
    if (marker.open_) {
        ::flock(marker.open_.number(), LOCK_EX | LOCK_NB);
        return marker;
    }
    ::unlink(path.c_str());
    return std::nullopt;
}

TemporaryFile::~TemporaryFile() {
    if (open_)
        ::unlink(path_.c_str());
}

Result<> TemporaryFile::moveTo(const fs::path& target) {
    if (::rename(path_.c_str(), target.c_str()) != 0)
        return tl::unexpected(lastSystemError(target));
    path_ = target;
    // The content was flushed, so closing has nothing left to lose; and the new name stands already.
    open_.close();
    return {};
}

Result<> replaceFile(const fs::path& file, std::span<const std::uint8_t> content) {
    if (isStream(file))
        return writeToStream(file, content);
    const auto target = behindLinks(file);
    removeLeftoversOnce(folderOf(target));
    auto written = TemporaryFile::write(folderOf(target), content);
    if (!written)
        return tl::unexpected(written.error().of(file));
    if (!takeOverPermissions(*written, target))
        return tl::unexpected(lastSystemError(file));
    if (const auto moved = written->moveTo(target); !moved)
        return tl::unexpected(moved.error().of(file));
    return flushFolder(folderOf(target));
}

Result<> replaceFile(const fs::path& file, std::string_view content) {
    return replaceFile(file,
                       std::span(reinterpret_cast<const std::uint8_t*>(content.data()), content.size()));
}

bool isTemporaryName(std::string_view name) {
    if (name.size() != kPrefix.size() + kDigits + 1 || !name.starts_with(kPrefix) || !name.ends_with(kSuffix))
        return false;
    const auto digits = name.substr(kPrefix.size(), kDigits);
    return digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

Result<> flushFolder(const fs::path& folder) {
    const FileDescriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder may allow writing but no reading, and some file systems cannot flush one and call it invalid;
    // there is nothing more to do about either.
    const bool done = open ? ::fsync(open.number()) == 0 || errno == EINVAL : errno == EACCES;
    if (!done)
        return tl::unexpected(lastSystemError(folder));
    return {};
}

Result<> flushFileSystem(const fs::path& folder) {
    const FileDescriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!open || ::syncfs(open.number()) != 0)
        return tl::unexpected(lastSystemError(folder));
    return {};
}

std::vector<fs::path> leftoversIn(const fs::path& folder) {
    std::vector<fs::path> found;
    for (FolderReader entries(folder); entries.next();) {
        if (!isTemporaryName(entries.name()))
            continue;
        fs::path file = folder / entries.name();
        const FileDescriptor open(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (open && ::flock(open.number(), LOCK_EX | LOCK_NB) == 0)
            found.push_back(std::move(file));
    }
    return found;
}

void removeLeftovers(const fs::path& folder) {
    for (const auto& file : leftoversIn(folder))
        ::unlink(file.c_str());
}

} // namespace easel::files
