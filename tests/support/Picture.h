// Pictures that the program wrote, as pixels and as rows of letters.
#pragma once

#include <cairo.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tests {

class Picture {
  public:
    Picture() = default;
    // Fails the test, and has no pixels, if the file cannot be read.
    explicit Picture(const std::filesystem::path& file) {
        cairo_surface_t* const surface = cairo_image_surface_create_from_png(file.c_str());
        EXPECT_EQ(cairo_surface_status(surface), CAIRO_STATUS_SUCCESS) << file;
        cairo_surface_flush(surface);
        width_ = cairo_image_surface_get_width(surface);
        height_ = cairo_image_surface_get_height(surface);
        const unsigned char* const data = cairo_image_surface_get_data(surface);
        for (int y = 0; y < height_; ++y) {
            const auto* const row = reinterpret_cast<const std::uint32_t*>(
                data + static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface));
            pixels_.insert(pixels_.end(), row, row + width_);
        }
        cairo_surface_destroy(surface);
    }

    int width() const { return width_; }
    int height() const { return height_; }
    // 0xRRGGBB; 0xffffffff outside, which no pixel is.
    std::uint32_t at(int x, int y) const {
        if (x < 0 || y < 0 || x >= width_ || y >= height_)
            return 0xffffffffu;
        return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                       static_cast<std::size_t>(x)] &
               0xffffffu;
    }
    // The pixels from (left, top) as letters: '#' black, '.' the background, '?' anything else.
    std::vector<std::string> letters(int left, int top, int width, int height,
                                     std::uint32_t background) const {
        std::vector<std::string> rows;
        for (int y = top; y < top + height; ++y) {
            std::string row;
            for (int x = left; x < left + width; ++x)
                row += at(x, y) == 0 ? '#' : at(x, y) == background ? '.' : '?';
            rows.push_back(row);
        }
        return rows;
    }

    friend bool operator==(const Picture&, const Picture&) = default;

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint32_t> pixels_;
};

} // namespace tests
