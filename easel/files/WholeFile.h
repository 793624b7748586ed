// Reading a file whole.
#pragma once

#include "easel/files/Bytes.h"
#include "easel/files/Result.h"

namespace easel::files {

constexpr std::uintmax_t kNoFileIsLarger = std::uintmax_t{1} << 40;

// The bytes of a regular file. A folder, a device, or a file larger than `limit` bytes is an error that says
// so.
Result<Bytes> readWholeFile(const std::filesystem::path& file, std::uintmax_t limit = kNoFileIsLarger);

} // namespace easel::files
