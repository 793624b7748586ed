// Pictures made of pixels, and how one lies in a drawing.
#pragma once

#include "easel/drawing/Geometry.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace easel::drawing {

// Rows from top to bottom without gaps between them. A pixel is 0xAARRGGBB in the machine's byte order, its
// colors multiplied by its alpha.
struct PicturePixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

// A picture as it came, which is decoded when its pixels are asked for. Any thread may ask.
class Picture {
  public:
    Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    virtual ~Picture() = default;

    // In pixels; above 0.
    virtual int width() const = 0;
    virtual int height() const = 0;
    // Null if the picture is damaged. Throws std::bad_alloc.
    virtual std::shared_ptr<const PicturePixels> pixels() const = 0;
    // The file, and what it is: "image/png".
    virtual std::string_view bytes() const = 0;
    virtual std::string_view mediaType() const = 0;
};

// A picture as paint: it shows as far as what it fills, its outermost pixels going on for ever.
struct PlacedPicture {
    std::shared_ptr<const Picture> picture; // never null
    Affine toDrawing;                       // from its pixels, the first of which covers 0 to 1 both ways
    bool smooth = true;                     // else each pixel is a rectangle of one color
};

} // namespace easel::drawing
