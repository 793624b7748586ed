// Points and rectangles in the whole pixels of a dialog, before any screen scale is applied.
#pragma once

namespace easel::paint {

// A point between pixels; the pixel of a point lies right of and below it.
struct PixelPoint {
    int h = 0;
    int v = 0;

    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

// The pixels from left up to but without right, and from top up to but without bottom.
struct PixelRect {
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool empty() const { return right <= left || bottom <= top; }
    bool contains(PixelPoint point) const {
        return point.h >= left && point.h < right && point.v >= top && point.v < bottom;
    }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// The pixels that both have; empty (but with meaningless edges) when they have none.
inline PixelRect intersection(const PixelRect& a, const PixelRect& b) {
    return {a.top > b.top ? a.top : b.top, a.left > b.left ? a.left : b.left,
            a.bottom < b.bottom ? a.bottom : b.bottom, a.right < b.right ? a.right : b.right};
}

} // namespace easel::paint
