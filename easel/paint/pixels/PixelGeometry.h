// Points and rectangles of whole pixels: those of a surface, or those of a dialog before any screen scale is
// applied.
#pragma once

#include <algorithm>

namespace easel::paint {

// A point between pixels; the pixel of a point lies right of and below it.
struct PixelPoint {
    int h = 0;
    int v = 0;

    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

// The pixels from left up to but without right, and from top up to but without bottom.
struct PixelRect {
    // The host's rectangles begin with the top and the drawing's boxes with the left, so sides are given by
    // name only, as in {.left = 1, .top = 2, .right = 5, .bottom = 4}: this takes the place of a first one.
    struct ByName {
        ByName() = default;
    };
    [[no_unique_address]] ByName byName{};

    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    friend bool operator==(const PixelRect& a, const PixelRect& b) {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }

    bool empty() const { return left >= right || top >= bottom; }
    int width() const { return std::max(right - left, 0); }
    int height() const { return std::max(bottom - top, 0); }
    PixelPoint middle() const { return {(left + right) / 2, (top + bottom) / 2}; }
    bool contains(PixelPoint point) const {
        return point.h >= left && point.h < right && point.v >= top && point.v < bottom;
    }
    // The pixels that both have; empty (but with meaningless sides) when they have none.
    PixelRect intersection(const PixelRect& other) const {
        return {.left = std::max(left, other.left),
                .top = std::max(top, other.top),
                .right = std::min(right, other.right),
                .bottom = std::min(bottom, other.bottom)};
    }
};

} // namespace easel::paint
