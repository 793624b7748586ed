// MacBinary: a file with type, creator and both forks in one, for ways that know no more than a name and
// bytes.
#pragma once

#include "easel/classic/AppleDouble.h"

#include <optional>
#include <string>

namespace easel::classic {

struct MacBinaryFile {
    std::string name; // Mac Roman, 1 to 63 bytes
    FinderInfo info;
    files::Bytes data;
    files::Bytes resourceFork;
    std::uint32_t date = 0; // when it was made, in seconds since the beginning of 1904

    bool operator==(const MacBinaryFile&) const = default;
};

// Now, in seconds since the beginning of 1904.
std::uint32_t dateNow();

// In version 2 of the format, which every later reader takes.
files::Bytes writeMacBinary(const MacBinaryFile& file);

// Nothing if the bytes are no MacBinary file of version 2 or later, or are cut short.
std::optional<MacBinaryFile> readMacBinary(ByteView bytes);

} // namespace easel::classic
