// Which file a reference in a drawing leads to, if it may be read.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace easel::svg {

// A drawing may show what lies in its own folder or below: the file, with all links followed. Nothing for a
// reference that leads anywhere else, to a network, or nowhere, and for a drawing without a file.
std::optional<std::filesystem::path> placeBeside(const std::filesystem::path& drawing,
                                                 std::string_view reference);

} // namespace easel::svg
