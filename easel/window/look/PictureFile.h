// Pictures of the plug-in's cursors and icons, from their files.
#pragma once

#include <QImage>

#include <filesystem>

namespace easel::window {

// A picture file (SVG) scaled to a size in desktop pixels, with `ratio` image pixels for each. Null if the
// file cannot be shown.
QImage pictureFile(const std::filesystem::path& file, QSize size, double ratio);

} // namespace easel::window
