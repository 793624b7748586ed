// What went wrong with which file, in words for the user.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <variant>
#include <vector>

namespace easel::files {

using Bytes = std::vector<std::uint8_t>;

struct FileError {
    std::filesystem::path file;
    std::string reason;
    std::error_code code; ///< the system's, where the system refused

    std::string message() const { return file.string() + ": " + reason; }
};

/// Nothing where all went well.
using FileOutcome = std::optional<FileError>;

template <class Value> using OrFileError = std::variant<Value, FileError>;

/// The error of the system call that just failed on that file.
FileError lastSystemError(const std::filesystem::path& file);

} // namespace easel::files
