// The content of a file, or of a part of one.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace easel::files {

using Bytes = std::vector<std::uint8_t>;

// The same as characters; valid as long as the bytes.
inline std::string_view charactersOf(const Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace easel::files
