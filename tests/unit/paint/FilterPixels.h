// Pictures for tests of filters.
#pragma once

#include "easel/paint/pixels/Surface.h"

#include <random>

// A premultiplied pixel of any color and alpha, now and then transparent or opaque.
inline std::uint32_t anyPixel(std::mt19937& random) {
    const auto pick = static_cast<std::uint32_t>(random() % 4);
    const std::uint32_t alpha = pick == 0 ? 0 : pick == 1 ? 255 : static_cast<std::uint32_t>(random() % 256);
    const auto channel = [&] { return static_cast<std::uint32_t>(random() % (alpha + 1)); };
    return alpha << 24 | channel() << 16 | channel() << 8 | channel();
}

inline easel::paint::Surface anyPicture(int width, int height, unsigned seed = 1) {
    std::mt19937 random(seed);
    easel::paint::Surface picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.row(y)[x] = anyPixel(random);
    return picture;
}

inline easel::paint::Surface plainPicture(int width, int height, std::uint32_t pixel) {
    easel::paint::Surface picture(width, height);
    picture.clear(pixel);
    return picture;
}

inline std::uint32_t levelAt(const easel::paint::Surface& picture, int x, int y, unsigned shift) {
    const bool inside = x >= 0 && y >= 0 && x < picture.width() && y < picture.height();
    return inside ? picture.row(y)[x] >> shift & 0xFF : 0;
}

inline bool samePixels(const easel::paint::Surface& one, const easel::paint::Surface& other) {
    if (one.width() != other.width() || one.height() != other.height())
        return false;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (one.row(y)[x] != other.row(y)[x])
                return false;
    return true;
}
