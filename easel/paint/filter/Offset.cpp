// feOffset (SVG 1.1, 15.21). Between pixels, the four around are mixed by their nearness.
#include "easel/paint/filter/Offset.h"

#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

#include <cmath>
#include <vector>

namespace easel::paint {

namespace {

// Fractions of a pixel are counted in so many parts.
constexpr double kParts = 256;
// Beyond any picture.
constexpr double kFarthestMove = 1e8;

// A whole number of pixels, and of parts of a pixel.
struct Move {
    int pixels;
    std::uint32_t parts;
};

Move moveOf(double by) {
    const double parts = std::round(std::clamp(by, -kFarthestMove, kFarthestMove) * kParts);
    const double pixels = std::floor(parts / kParts);
    return {static_cast<int>(pixels), static_cast<std::uint32_t>(parts - pixels * kParts)};
}

std::uint32_t mixed(std::uint32_t one, std::uint32_t other, std::uint32_t ofOther) {
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        const std::uint32_t sum =
            (one >> shift & 0xFF) * (256 - ofOther) + (other >> shift & 0xFF) * ofOther + 128;
        result |= sum >> 8 << shift;
    }
    return result;
}

} // namespace

Surface movedBy(const Surface& picture, drawing::Point by) {
    const Move across = moveOf(by.x);
    const Move down = moveOf(by.y);
    const int width = picture.width();
    Surface result(width, picture.height());
    const auto pixel = [&](int x, int y) {
        return x >= 0 && x < width && y >= 0 && y < picture.height() ? picture.row(y)[x] : 0;
    };
    forEachRow(picture, [&](int y) {
        const int fromY = y - down.pixels;
        if (fromY < 0 || fromY > picture.height())
            return;
        const auto column = [&](int x) {
            return down.parts == 0 ? pixel(x, fromY)
                                   : mixed(pixel(x, fromY), pixel(x, fromY - 1), down.parts);
        };
        std::uint32_t* const row = result.row(y);
        const int first = std::max(across.pixels, 0);
        std::uint32_t left = column(first - across.pixels - 1);
        for (int x = first; x < std::min(width, width + across.pixels + 1); ++x) {
            const std::uint32_t right = column(x - across.pixels);
            row[x] = across.parts == 0 ? right : mixed(right, left, across.parts);
            left = right;
        }
    });
    return result;
}

} // namespace easel::paint
