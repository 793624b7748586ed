// Names the marks after the files and tells by their locks whose are still in use.
#include "easel/recovery/FileUse.h"

#include "easel/files/FolderReader.h"
#include "easel/files/UserFolders.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string_view>
#include <sys/file.h>

namespace fs = std::filesystem;

namespace easel::recovery {
namespace {

using files::FileDescriptor;

constexpr std::size_t kDigits = 16;

// The same in every program, as the hash of the standard library need not be (FNV-1a, 64 bits).
std::uint64_t numberOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
    return hash;
}

std::string hex(std::uint64_t number) {
    std::array<char, kDigits + 1> text{};
    std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(number));
    return text.data();
}

fs::path nameFor(const fs::path& file) {
    std::error_code error;
    const fs::path real = fs::weakly_canonical(file, error);
    std::random_device random;
    const std::uint64_t own = std::uint64_t{random()} << 32 | random();
    return hex(numberOf((error ? file : real).native())) + '-' + hex(own);
}

} // namespace

files::Result<FileUse> FileUse::begin(const fs::path& folder, const fs::path& file) {
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    const fs::path name = nameFor(file);
    const fs::path mark = folder / name;
    // Whoever finds a mark that is not locked takes it for a leftover and removes it, so it has another name
    // first.
    const fs::path unlocked = folder / ('.' + name.native());
    FileDescriptor open(::open(unlocked.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (open && ::flock(open.number(), LOCK_EX | LOCK_NB) == 0 &&
        ::rename(unlocked.c_str(), mark.c_str()) == 0)
        return FileUse(mark, std::move(open));
    files::Error error = files::lastSystemError(mark);
    ::unlink(unlocked.c_str());
    return tl::unexpected(std::move(error));
}

FileUse::~FileUse() {
    if (locked_)
        ::unlink(mark_.c_str());
}

bool FileUse::isShared() const {
    const std::string own = mark_.filename().string();
    const std::string begin = own.substr(0, kDigits + 1);
    bool shared = false;
    files::FolderReader marks(mark_.parent_path());
    while (marks.next()) {
        const std::string_view name = marks.name();
        if (!name.starts_with(begin) || name == own)
            continue;
        const fs::path other = mark_.parent_path() / name;
        const FileDescriptor open(::open(other.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (open && ::flock(open.number(), LOCK_SH | LOCK_NB) == 0)
            ::unlink(other.c_str());
        else if (open)
            shared = true;
    }
    return shared;
}

fs::path useFolder() {
    return files::stateFolder() / "open";
}

} // namespace easel::recovery
