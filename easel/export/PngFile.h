// Pictures as PNG files: 8 bits per channel, with an alpha channel only where a pixel needs it.
#pragma once

#include "easel/export/Progress.h"
#include "easel/files/Result.h"
#include "easel/paint/pixels/Parallel.h"
#include "easel/paint/pixels/Surface.h"

#include <cstdint>
#include <vector>

namespace easel::exports {

// Pixels to be read, premultiplied 0xAARRGGBB; `stride` is the distance between rows in bytes.
struct PixelRows {
    const std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;

    const std::uint32_t* row(int y) const { return pixels + y * (stride / 4); }
};
PixelRows rowsOf(const paint::Surface& surface);

// The bytes of the PNG file, the same for any number of threads. Width and height are above 0. Throws
// Cancelled.
std::vector<std::uint8_t> encodePng(const PixelRows& picture, unsigned threads = paint::usefulThreads(),
                                    const Progress& progress = {});

// Replaces the file whole or, after an error, not at all. Throws Cancelled.
[[nodiscard]] files::Result<> writePng(const std::filesystem::path& file, const PixelRows& picture,
                                       const Progress& progress = {});

} // namespace easel::exports
