// Files of pixels through gdk-pixbuf.
#pragma once

#include "easel/drawing/Picture.h"

#include <memory>
#include <optional>
#include <string_view>

namespace easel::pictures {

// A format by the name that the loaders have for it.
struct Format {
    const char* loader;
    const char* mediaType;
};

// By the first bytes of a file; null for a format that is not read.
const Format* formatOf(std::string_view bytes);

struct PixelSize {
    int width = 0;
    int height = 0;
};

// As the head of the file says. Nothing if there is none, or no loader for the format.
std::optional<PixelSize> sizeOf(std::string_view bytes, const Format& format);

// Null if the file is damaged so much that nothing of it can be shown, or is not of this size after all.
std::shared_ptr<const drawing::PicturePixels> loadPixels(std::string_view bytes, const Format& format,
                                                         PixelSize size);

} // namespace easel::pictures
