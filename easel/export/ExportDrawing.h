// Pictures of drawings in files of other formats.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/export/PictureSize.h"
#include "easel/export/Progress.h"
#include "easel/files/Result.h"

#include <filesystem>

namespace easel::exports {

// Writes the drawing as PNG (with a transparent background), PDF or SVG, by the ending of the file's name. A
// file that is there is replaced whole or, after an error, not at all. The error names the file and the
// reason, which may be an ending that is none of these, a size that cannot be, or a lack of memory; where
// `progress` cancelled, it is a cancellation.
[[nodiscard]] files::Result<> exportDrawing(const drawing::Drawing& drawing,
                                            const std::filesystem::path& file, const SizeRequest& size = {},
                                            const Progress& progress = {});

} // namespace easel::exports
