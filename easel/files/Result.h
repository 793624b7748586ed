// What a function gives that may fail: its value, or an error with the reason in words for the user.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <tl/expected.hpp>

namespace easel::files {

struct Error {
    std::filesystem::path file; // or what else is at fault; empty until a caller who knows its name adds it
    std::string reason;
    std::error_code code; // tells kinds of errors apart; none where nobody needs to

    std::string message() const { return file.string() + ": " + reason; }
    // The same, said of another file.
    Error of(std::filesystem::path other) const { return {std::move(other), reason, code}; }
    // Whether it is nobody's fault: the user has cancelled.
    bool isCancellation() const { return code == std::errc::operation_canceled; }
};

template <class Value = void> using Result = tl::expected<Value, Error>;

// The error of the system call that just failed on that file.
Error lastSystemError(const std::filesystem::path& file);

} // namespace easel::files
