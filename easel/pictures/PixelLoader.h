// What decodes files of pixels. It lives in a library of its own, which is loaded when the first picture is
// met: drawings without pictures do not have to wait for its loaders.
#pragma once

#include "easel/drawing/Picture.h"
#include "easel/pictures/Format.h"

#include <memory>
#include <optional>
#include <string_view>

namespace easel::pictures {

struct PixelSize {
    int width = 0;
    int height = 0;
};

class PixelLoader {
  public:
    PixelLoader() = default;
    PixelLoader(const PixelLoader&) = delete;
    PixelLoader& operator=(const PixelLoader&) = delete;
    virtual ~PixelLoader() = default;

    // Both may be called from any thread.

    // As the head of the file says. Nothing if there is none, or no loader for the format.
    virtual std::optional<PixelSize> size(std::string_view bytes, const Format& format) = 0;
    // Null if the file is damaged so much that nothing of it can be shown, or is not of this size after all.
    virtual std::shared_ptr<const drawing::PicturePixels> pixels(std::string_view bytes, const Format& format,
                                                                 PixelSize size) = 0;
};

// The one of the program; null if its library cannot be loaded.
PixelLoader* pixelLoader();

// What the library exports: a function that gives the loader, which lives as long as the program.
using PixelLoaderFunction = PixelLoader* (*)();
inline constexpr const char* kPixelLoaderSymbol = "easelPixelLoader";

} // namespace easel::pictures
