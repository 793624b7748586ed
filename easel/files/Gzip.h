// Files compressed with gzip.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace easel::files {

// Whether the bytes begin as such a file does.
bool isGzip(std::string_view bytes);

enum class GzipFault : std::uint8_t {
    TooLarge, // unpacked it is larger than the limit
    Damaged,  // cut off, changed on the way, or followed by something else
};

// What the members of the file hold, one after the other. Memory stays within the limit in bytes and what
// such a file can hold at the most; throws std::bad_alloc where there is not so much.
tl::expected<std::string, GzipFault> unpackedGzip(std::string_view bytes, std::uintmax_t limit);

// A file of one member without name or time, so that equal bytes give equal files. Throws std::bad_alloc.
std::string packedGzip(std::string_view bytes);

} // namespace easel::files
