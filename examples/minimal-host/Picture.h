// The drawing as pixels, and the pixels as a file.
#pragma once

#include "Drawing.h"

#include <cstdint>
#include <filesystem>
#include <vector>

/// A picture of 8-bit colors, white at first.
class Picture {
  public:
    Picture(int width, int height);

    /// Fills a rectangle, given in pixels, as an object: with its gradient, or gray.
    void Paint(HostObject const& object);
    /// Writes a portable pixmap (PPM, P6). Throws std::runtime_error if the file cannot be written.
    void Save(std::filesystem::path const& file) const;

  private:
    void Set(int x, int y, RGBColor const& color);

    int width_;
    int height_;
    std::vector<std::uint8_t> bytes_;
};
