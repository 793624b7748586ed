// What is said of a file where memory ends.
#pragma once

#include "easel/files/Result.h"

#include <utility>

namespace easel::files {

// There is not enough memory for what the file holds.
inline Error tooLargeForMemory(std::filesystem::path file) {
    return {std::move(file), "there is not enough memory for it",
            std::make_error_code(std::errc::not_enough_memory)};
}

// There is not enough memory for the bytes that are to be written.
inline Error notEnoughMemoryToWrite(std::filesystem::path file) {
    return {std::move(file), "there is not enough memory to write it",
            std::make_error_code(std::errc::not_enough_memory)};
}

} // namespace easel::files
