// Lengths and boxes of a filter in whole pixels.
#include "easel/paint/filter/FilterSpace.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

using drawing::Point;

namespace {

int wholePixel(double value) {
    constexpr double kFarthestPixel = 1e9;
    return static_cast<int>(std::clamp(value, -kFarthestPixel, kFarthestPixel));
}

} // namespace

PixelPoint FilterSpace::wholeSteps(Point distance) const {
    const Point pixels = toPixels.direction(distance);
    const auto whole = [](double length) {
        return static_cast<int>(std::lround(std::clamp(length, 1.0, 1000.0)));
    };
    return {whole(pixels.x), whole(pixels.y)};
}

PixelRect pixelsOf(const drawing::Box& box, const FilterSpace& space) {
    // Lengths that come out as whole pixels but for rounding are meant to.
    constexpr double kSlack = 1e-6;
    if (box.empty())
        return {};
    const Point first = space.toPixels({box.left, box.top});
    const Point last = space.toPixels({box.right, box.bottom});
    return {.left = wholePixel(std::floor(first.x + kSlack)),
            .top = wholePixel(std::floor(first.y + kSlack)),
            .right = wholePixel(std::ceil(last.x - kSlack)),
            .bottom = wholePixel(std::ceil(last.y - kSlack))};
}

} // namespace easel::paint
