// The desktop's trash: choosing it by device, naming what goes in, and noting where it came from.
#include "easel/files/Trash.h"

#include "easel/files/UserFolders.h"
#include "easel/files/WholeFile.h"

#include <array>
#include <cerrno>
#include <ctime>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace easel::files {
namespace {

struct TrashFolder {
    fs::path folder;
    fs::path noteBase; // notes give paths below this one relative to it; empty for absolute paths
};

std::optional<dev_t> deviceOf(fs::path path) {
    struct stat status {};
    while (::stat(path.c_str(), &status) != 0) {
        if (path == path.parent_path())
            return std::nullopt;
        path = path.parent_path();
    }
    return status.st_dev;
}

fs::path topOfDevice(fs::path folder) {
    const auto device = deviceOf(folder);
    while (folder != folder.parent_path() && deviceOf(folder.parent_path()) == device)
        folder = folder.parent_path();
    return folder;
}

bool makeFolders(const fs::path& trash) {
    std::error_code error;
    fs::create_directories(trash.parent_path(), error);
    for (const auto& folder : {trash, trash / "files", trash / "info"})
        if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
            return false;
    return true;
}

// An administrator's shared trash counts only as a real folder with the sticky bit; anything else is a trap.
std::optional<fs::path> sharedTrash(const fs::path& top) {
    struct stat status {};
    const auto shared = top / ".Trash";
    if (::lstat(shared.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || !(status.st_mode & S_ISVTX))
        return std::nullopt;
    return shared / std::to_string(::getuid());
}

bool isOwnFolder(const fs::path& folder) {
    struct stat status {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid();
}

TrashFolder chooseTrash(const fs::path& home, const fs::path& folder) {
    if (deviceOf(home) == deviceOf(folder))
        return {home, {}};
    const auto top = topOfDevice(folder);
    if (const auto shared = sharedTrash(top); shared && makeFolders(*shared) && isOwnFolder(*shared))
        return {*shared, top};
    const auto own = top / (".Trash-" + std::to_string(::getuid()));
    if (makeFolders(own) && isOwnFolder(own))
        return {own, top};
    return {home, {}};
}

std::string percentEncoded(const std::string& path) {
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.~/";
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (kPlain.find(c) != std::string_view::npos)
            encoded += c;
        else
            encoded.append({'%', kHex[byte >> 4], kHex[byte & 15]});
    }
    return encoded;
}

std::string noteFor(const fs::path& original, const TrashFolder& trash) {
    std::array<char, 32> date{};
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
    const auto path = trash.noteBase.empty() ? original : original.lexically_relative(trash.noteBase);
    return "[Trash Info]\nPath=" + percentEncoded(path.string()) + "\nDeletionDate=" + date.data() + "\n";
}

// "Sunset.GRD" becomes "Sunset.2.GRD", and the header file beside it "._Sunset.2.GRD".
std::string numbered(const std::string& name, int number) {
    if (number == 1)
        return name;
    const std::string prefix = name.starts_with("._") ? "._" : "";
    const fs::path rest = name.substr(prefix.size());
    return prefix + rest.stem().string() + "." + std::to_string(number) + rest.extension().string();
}

// Makes the note, which is what claims a name in a trash that other programs use too.
Result<> claim(const fs::path& note, const std::string& text, Flushing flushing) {
    FileDescriptor open(::open(note.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!open)
        return tl::unexpected(lastSystemError(note));
    const auto done = ::write(open.number(), text.data(), text.size());
    const bool isFlushed = flushing == Flushing::Later || ::fsync(open.number()) == 0;
    if (done == static_cast<ssize_t>(text.size()) && isFlushed && open.close())
        return {};
    auto error = lastSystemError(note);
    ::unlink(note.c_str());
    return tl::unexpected(std::move(error));
}

} // namespace

TrashPlace::~TrashPlace() {
    for (const auto& file : files_)
        ::unlink(file.c_str());
    for (const auto& note : notes_)
        ::unlink(note.c_str());
}

Result<> TrashPlace::add(const fs::path& trash, const std::string& name, const std::string& note,
                         Flushing flushing) {
    const auto file = trash / "files" / name;
    struct stat status {};
    if (::lstat(file.c_str(), &status) == 0)
        return tl::unexpected(Error{file, "the name is taken", std::make_error_code(std::errc::file_exists)});
    const auto notePath = trash / "info" / (name + ".trashinfo");
    if (auto claimed = claim(notePath, note, flushing); !claimed)
        return claimed;
    notes_.push_back(notePath);
    files_.push_back(file);
    return {};
}

void TrashPlace::keep() {
    files_.clear();
    notes_.clear();
}

fs::path Trash::desktopHome() {
    return dataFolder() / "Trash";
}

Result<TrashPlace> Trash::reserve(std::span<const fs::path> originals, Flushing flushing) const {
    std::error_code ignored;
    const auto trash = chooseTrash(home_, fs::absolute(originals.front(), ignored).parent_path());
    if (!makeFolders(trash.folder))
        return tl::unexpected(lastSystemError(trash.folder));
    constexpr int kTries = 100'000;
    for (int number = 1; number < kTries; ++number) {
        TrashPlace place;
        Result<> added;
        for (const auto& original : originals) {
            const auto note = noteFor(fs::absolute(original, ignored), trash);
            added = place.add(trash.folder, numbered(original.filename().string(), number), note, flushing);
            if (!added)
                break;
        }
        if (added)
            return place;
        if (added.error().code != std::errc::file_exists)
            return tl::unexpected(added.error());
    }
    return tl::unexpected(Error{trash.folder, "the trash holds too many files of that name",
                                std::make_error_code(std::errc::file_exists)});
}

Result<> linkOrCopy(const fs::path& file, const fs::path& place) {
    if (::link(file.c_str(), place.c_str()) == 0)
        return {};
    const auto content = readWholeFile(file);
    if (!content)
        return tl::unexpected(content.error());
    return replaceFile(place, *content);
}

Result<> Trash::move(const fs::path& file) const {
    auto reserved = reserve(std::span(&file, 1));
    if (!reserved)
        return tl::unexpected(reserved.error());
    const auto& target = reserved->files().front();
    if (::rename(file.c_str(), target.c_str()) != 0) {
        if (auto copied = linkOrCopy(file, target); !copied)
            return copied;
        if (::unlink(file.c_str()) != 0)
            return tl::unexpected(lastSystemError(file));
    }
    reserved->keep();
    return flushFolder(file.parent_path());
}

} // namespace easel::files
