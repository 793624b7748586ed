// Reading a file whole, and the words for what can go wrong.
#include "easel/files/WholeFile.h"

#include "easel/files/FileDescriptor.h"

#include <cerrno>
#include <new>
#include <sys/stat.h>

namespace easel::files {
namespace {

Result<Bytes> readAll(const FileDescriptor& open, std::size_t expected, std::uintmax_t limit,
                      const std::filesystem::path& file) {
    Bytes bytes;
    // One byte more than expected, so that the end of the file shows at the first read.
    bytes.resize(expected + 1);
    std::size_t filled = 0;
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(bytes.size() * 2);
        const auto got = ::read(open.number(), bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return tl::unexpected(lastSystemError(file));
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
        if (filled > limit)
            return tl::unexpected(
                Error{file, "the file is too large", std::make_error_code(std::errc::file_too_large)});
    }
    bytes.resize(filled);
    return bytes;
}

} // namespace

Error lastSystemError(const std::filesystem::path& file) {
    const std::error_code code(errno, std::generic_category());
    return {file, code.message(), code};
}

Result<Bytes> readWholeFile(const std::filesystem::path& file, std::uintmax_t limit) {
    const FileDescriptor open(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!open || ::fstat(open.number(), &status) != 0)
        return tl::unexpected(lastSystemError(file));
    if (S_ISDIR(status.st_mode))
        return tl::unexpected(Error{file, "it is a folder", std::make_error_code(std::errc::is_a_directory)});
    if (!S_ISREG(status.st_mode))
        return tl::unexpected(
            Error{file, "it is not a regular file", std::make_error_code(std::errc::invalid_argument)});
    if (static_cast<std::uintmax_t>(status.st_size) > limit)
        return tl::unexpected(
            Error{file, "the file is too large", std::make_error_code(std::errc::file_too_large)});
    try {
        return readAll(open, static_cast<std::size_t>(status.st_size), limit, file);
    } catch (const std::bad_alloc&) {
        return tl::unexpected(Error{file, "the file is larger than memory",
                                    std::make_error_code(std::errc::not_enough_memory)});
    }
}

} // namespace easel::files
