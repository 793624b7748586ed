// Names of files as the host has them and as they are on disk.
//
// A host name is Mac Roman, at most 63 bytes, with '/' as a letter and ':' as the separator of paths. On disk
// a name is composed UTF-8 in which ':' stands for that letter '/'.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace easel::classic {

// The name on disk, or nothing for what names no file: empty, "." and "..", with a ':' or a zero byte in it,
// too long, or reserved for our own use ("._" and what follows it, temporary files).
std::optional<std::string> nameOnDisk(std::string_view hostName);
/// Of a name that names no file: why, as the end of a sentence that begins with the name.
std::string whyNoFile(std::string_view hostName);

// The host's name for a file on disk, or nothing where the host cannot name it.
std::optional<std::string> nameInHost(std::string_view diskName);

} // namespace easel::classic
