// The content of a file, or of a part of one.
#pragma once

#include <cstdint>
#include <vector>

namespace easel::files {

using Bytes = std::vector<std::uint8_t>;

} // namespace easel::files
