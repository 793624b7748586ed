// An icon from a picture file, drawn anew at every size that is asked for.
#pragma once

#include <QIcon>

#include <filesystem>

namespace easel::window {

// Empty if the file cannot be shown.
QIcon pictureIcon(const std::filesystem::path& file);

} // namespace easel::window
