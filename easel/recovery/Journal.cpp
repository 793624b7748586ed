// Keeps each journal beside a file whose lock tells whether a program lives that has it.
#include "easel/recovery/Journal.h"

#include "easel/files/AtomicFile.h"
#include "easel/files/FolderReader.h"
#include "easel/files/UserFolders.h"
#include "easel/files/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace easel::recovery {
namespace {

using files::FileDescriptor;
using files::Result;

constexpr std::string_view kLockSuffix = ".lock";
constexpr std::string_view kDrawingSuffix = ".svg";
// Drawings are private: a journal must not show to others what its file may hide from them.
constexpr mode_t kFolderMode = 0700;
constexpr mode_t kFileMode = 0600;

// A user who looks into the folder, or into the trash, knows the drawing by its name.
std::string newName(const fs::path& origin) {
    constexpr std::size_t kLongestStem = 60;
    std::string stem = origin.empty() ? "untitled" : origin.stem().string().substr(0, kLongestStem);
    std::random_device random;
    constexpr std::string_view kHex = "0123456789abcdef";
    stem += '-';
    for (int digit = 0; digit < 12; ++digit)
        stem += kHex[random() % kHex.size()];
    return stem;
}

fs::path withSuffix(const fs::path& base, std::string_view suffix) {
    return base.native() + std::string(suffix);
}

Result<> makeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder.parent_path(), error);
    if (::mkdir(folder.c_str(), kFolderMode) == 0)
        return files::flushFolder(folder.parent_path());
    if (errno != EEXIST)
        return tl::unexpected(files::lastSystemError(folder));
    return {};
}

Result<> writeOrigin(const FileDescriptor& open, const fs::path& lock, const std::string& origin) {
    const auto done = ::write(open.number(), origin.data(), origin.size());
    if (done != static_cast<ssize_t>(origin.size()) || ::fsync(open.number()) != 0)
        return tl::unexpected(files::lastSystemError(lock));
    return {};
}

// The modification time; the epoch for a file that is gone.
fs::file_time_type timeOf(const fs::path& file) {
    std::error_code error;
    const auto time = fs::last_write_time(file, error);
    return error ? fs::file_time_type{} : time;
}

// Whether the lock file is still the one of that name: whoever had the journal may have removed it meanwhile.
bool stillThere(const FileDescriptor& open) {
    struct stat status {};
    return ::fstat(open.number(), &status) == 0 && status.st_nlink > 0;
}

} // namespace

Result<Journal> Journal::begin(const fs::path& folder, const fs::path& origin) {
    if (auto made = makeFolder(folder); !made)
        return tl::unexpected(made.error());
    files::removeLeftovers(folder);
    // A program that starts between making and locking the file takes it for a leftover and removes it.
    constexpr int kTries = 5;
    files::Error error;
    for (int i = 0; i < kTries; ++i) {
        const fs::path base = folder / newName(origin);
        const fs::path lock = withSuffix(base, kLockSuffix);
        FileDescriptor open(::open(lock.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kFileMode));
        const bool locked = open && ::flock(open.number(), LOCK_EX | LOCK_NB) == 0;
        error = files::lastSystemError(lock);
        if (!locked || !stillThere(open)) {
            ::unlink(lock.c_str());
            continue;
        }
        Journal journal(withSuffix(base, kDrawingSuffix), lock, origin, std::move(open));
        if (auto written = writeOrigin(journal.locked_, lock, origin.string()); !written) {
            journal.remove();
            return tl::unexpected(written.error());
        }
        return journal;
    }
    return tl::unexpected(std::move(error));
}

std::vector<Journal> Journal::abandonedIn(const fs::path& folder) {
    files::removeLeftovers(folder);
    std::vector<Journal> found;
    files::FolderReader entries(folder);
    while (entries.next()) {
        const fs::path lock = folder / entries.name();
        if (lock.extension() != kLockSuffix)
            continue;
        FileDescriptor open(::open(lock.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (!open || ::flock(open.number(), LOCK_EX | LOCK_NB) != 0 || !stillThere(open))
            continue;
        const auto origin = files::readWholeFile(lock);
        const fs::path base = fs::path(lock).replace_extension();
        Journal journal(withSuffix(base, kDrawingSuffix), lock,
                        origin ? fs::path(files::charactersOf(*origin)) : fs::path(), std::move(open));
        std::error_code unknown;
        if (fs::exists(journal.drawing_, unknown))
            found.push_back(std::move(journal));
        else
            journal.remove();
    }
    std::vector<std::pair<fs::file_time_type, std::size_t>> order;
    for (std::size_t i = 0; i < found.size(); ++i)
        order.emplace_back(timeOf(found[i].drawing()), i);
    std::sort(order.rbegin(), order.rend());
    std::vector<Journal> sorted;
    sorted.reserve(order.size());
    for (const auto& [time, index] : order)
        sorted.push_back(std::move(found[index]));
    return sorted;
}

Result<> Journal::keep(std::string_view bytes) const {
    auto written = files::TemporaryFile::write(
        drawing_.parent_path(), std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
    if (!written)
        return tl::unexpected(written.error().of(drawing_));
    if (::fchmod(written->descriptor().number(), kFileMode) != 0)
        return tl::unexpected(files::lastSystemError(drawing_));
    if (auto moved = written->moveTo(drawing_); !moved)
        return moved;
    return files::flushFolder(drawing_.parent_path());
}

// The drawing goes first: a lock without a drawing is nothing, but a drawing without a lock is nobody's.
void Journal::remove() {
    if (!locked_)
        return;
    ::unlink(drawing_.c_str());
    ::unlink(lock_.c_str());
    locked_ = FileDescriptor();
}

fs::path journalFolder() {
    return files::stateFolder() / "recovery";
}

} // namespace easel::recovery
