// Writes the bytes, cuts the rest off and flushes.
#include "easel/files/InPlace.h"

#include "easel/files/FileDescriptor.h"
#include "easel/files/WholeFile.h"

#include <cerrno>
#include <unistd.h>

namespace easel::files {
namespace {

bool fill(const FileDescriptor& open, std::string_view content) {
    std::size_t at = 0;
    while (at < content.size()) {
        const auto done =
            ::pwrite(open.number(), content.data() + at, content.size() - at, static_cast<off_t>(at));
        if (done < 0 && errno == EINTR)
            continue;
        if (done < 0)
            return false;
        at += static_cast<std::size_t>(done);
    }
    return ::ftruncate(open.number(), static_cast<off_t>(content.size())) == 0 && ::fsync(open.number()) == 0;
}

} // namespace

bool isForbiddenFolder(const Error& error) {
    return error.code == std::errc::permission_denied || error.code == std::errc::operation_not_permitted ||
           error.code == std::errc::read_only_file_system;
}

Result<> overwriteFile(const std::filesystem::path& file, std::string_view content) {
    const auto old = readWholeFile(file);
    FileDescriptor open(::open(file.c_str(), O_WRONLY | O_CLOEXEC));
    if (!open)
        return tl::unexpected(lastSystemError(file));
    if (fill(open, content))
        return {};
    auto error = lastSystemError(file);
    if (old)
        fill(open, charactersOf(*old));
    return tl::unexpected(std::move(error));
}

} // namespace easel::files
