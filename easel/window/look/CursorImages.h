// Cursors by their resource ids, drawn at the resolution of the screen.
#pragma once

#include <QCursor>
#include <QImage>

#include <filesystem>

namespace easel::window {

// A picture file (SVG) scaled to a size in desktop pixels, with `ratio` image pixels for each. Null if the
// file cannot be shown.
QImage pictureFile(const std::filesystem::path& file, QSize size, double ratio);

// 0 is the arrow, 606 the host's plain tool cursor, others come from the plug-in's resources; an unknown id
// gives the arrow.
QCursor cursorWithId(long id, double ratio);

} // namespace easel::window
