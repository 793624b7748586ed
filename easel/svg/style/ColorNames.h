// The color names of CSS.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace easel::svg {

// 0xrrggbb of the name, whatever its case.
std::optional<std::uint32_t> namedColor(std::string_view name);

} // namespace easel::svg
