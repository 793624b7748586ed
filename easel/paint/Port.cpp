// The port's image, its rectangles and its spans of pixels.
#include "easel/paint/Port.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

namespace {

constexpr std::uint32_t kOpaque = 0xff000000u;
constexpr std::uint32_t kColorBits = 0x00ffffffu;

// A 16-bit channel rounded to the nearest of 256 levels.
std::uint32_t level(std::uint16_t channel) {
    return (channel * 255u + 32767u) / 65535u;
}

std::uint32_t pixelOf(const drawing::Rgb16& color) {
    return kOpaque | level(color.red) << 16 | level(color.green) << 8 | level(color.blue);
}

PixelRect unionOf(const PixelRect& a, const PixelRect& b) {
    if (a.empty())
        return b;
    return {.left = std::min(a.left, b.left),
            .top = std::min(a.top, b.top),
            .right = std::max(a.right, b.right),
            .bottom = std::max(a.bottom, b.bottom)};
}

} // namespace

Port::Port(const PixelRect& bounds, double scale, std::uint32_t background)
    : bounds_(bounds), scale_(scale), imageWidth_(std::max(0, imageH(bounds.right))),
      imageHeight_(std::max(0, imageV(bounds.bottom))),
      pixels_(static_cast<std::size_t>(imageWidth_) * static_cast<std::size_t>(imageHeight_),
              kOpaque | background) {
    state_.background = background;
    state_.clip = bounds;
}

// Rounding positions of the screen as a whole, not distances within this port, makes off-screen images fit
// the port that they are copied to at any scale.
int Port::imageH(int h) const {
    return static_cast<int>(std::lround(h * scale_) - std::lround(bounds_.left * scale_));
}

int Port::imageV(int v) const {
    return static_cast<int>(std::lround(v * scale_) - std::lround(bounds_.top * scale_));
}

int Port::scaled(int length) const {
    return length <= 0 ? 0 : std::max(1, static_cast<int>(std::lround(length * scale_)));
}

PixelRect Port::imageRect(const PixelRect& rect) const {
    return {.left = imageH(rect.left),
            .top = imageV(rect.top),
            .right = imageH(rect.right),
            .bottom = imageV(rect.bottom)};
}

PixelRect Port::imageClip() const {
    return imageRect(state_.clip).intersection({.right = imageWidth_, .bottom = imageHeight_});
}

PixelRect Port::takeDamage() {
    const PixelRect damage = damage_;
    damage_ = {};
    return damage;
}

void Port::addDamage(const PixelRect& rect) {
    const PixelRect seen = rect.intersection(state_.clip).intersection(bounds_);
    if (!seen.empty())
        damage_ = unionOf(damage_, seen);
}

bool Port::patternBit(int row, int column) const {
    const auto v = static_cast<int>(std::floor((row + std::round(bounds_.top * scale_)) / scale_));
    const auto h = static_cast<int>(std::floor((column + std::round(bounds_.left * scale_)) / scale_));
    return (state_.pen.pattern[static_cast<std::size_t>(v & 7)] >> (7 - (h & 7)) & 1) != 0;
}

void Port::fillSpan(int row, int from, int to, const PixelRect& clip, Ink ink) {
    if (row < clip.top || row >= clip.bottom)
        return;
    from = std::max(from, clip.left);
    to = std::min(to, clip.right);
    if (from >= to)
        return;
    std::uint32_t* const start = pixels_.data() + static_cast<std::ptrdiff_t>(row) * imageWidth_;
    const std::uint32_t background = kOpaque | state_.background;
    if (ink == Ink::Background) {
        std::fill(start + from, start + to, background);
        return;
    }
    const bool solid = state_.pen.pattern == kSolidPattern;
    const std::uint32_t foreground = pixelOf(state_.foreground);
    const bool inverts = state_.pen.mode == PenMode::Invert;
    if (solid && !inverts) {
        std::fill(start + from, start + to, foreground);
        return;
    }
    for (int column = from; column < to; ++column) {
        const bool set = solid || patternBit(row, column);
        if (!inverts)
            start[column] = set ? foreground : background;
        else if (set)
            invert(row, column);
    }
}

void Port::invert(int row, int column) {
    const std::size_t at = static_cast<std::size_t>(row) * static_cast<std::size_t>(imageWidth_) +
                           static_cast<std::size_t>(column);
    pixels_[at] ^= kColorBits;
    inverted_.resize(pixels_.size());
    inverted_[at] = !inverted_[at];
}

void Port::fillRect(const PixelRect& rect, Ink ink) {
    const PixelRect clip = imageClip();
    const PixelRect area = imageRect(rect);
    const int bottom = std::min(area.bottom, clip.bottom);
    for (int row = std::max(area.top, clip.top); row < bottom; ++row)
        fillSpan(row, area.left, area.right, clip, ink);
    addDamage(rect);
}

void Port::paintRect(const PixelRect& rect) {
    fillRect(rect, Ink::Pen);
}

void Port::eraseRect(const PixelRect& rect) {
    fillRect(rect, Ink::Background);
}

void Port::frameRect(const PixelRect& rect) {
    if (rect.empty())
        return;
    const PixelRect clip = imageClip();
    const PixelRect outer = imageRect(rect);
    const int penWidth = scaled(state_.pen.size.h);
    const int penHeight = scaled(state_.pen.size.v);
    const PixelRect inner{.left = outer.left + penWidth,
                          .top = outer.top + penHeight,
                          .right = outer.right - penWidth,
                          .bottom = outer.bottom - penHeight};
    const int bottom = std::min(outer.bottom, clip.bottom);
    for (int row = std::max(outer.top, clip.top); row < bottom; ++row) {
        if (row < inner.top || row >= inner.bottom || inner.left >= inner.right) {
            fillSpan(row, outer.left, outer.right, clip, Ink::Pen);
        } else {
            fillSpan(row, outer.left, inner.left, clip, Ink::Pen);
            fillSpan(row, inner.right, outer.right, clip, Ink::Pen);
        }
    }
    addDamage(rect);
}

void Port::copyFrom(const Port& other) {
    const PixelRect area = imageRect(other.bounds_);
    const PixelRect part = imageClip().intersection({.left = area.left,
                                                     .top = area.top,
                                                     .right = area.left + other.imageWidth_,
                                                     .bottom = area.top + other.imageHeight_});
    if (part.empty())
        return;
    for (int row = part.top; row < part.bottom; ++row) {
        const std::uint32_t* from = other.pixels_.data() +
                                    static_cast<std::ptrdiff_t>(row - area.top) * other.imageWidth_ -
                                    area.left;
        std::copy(from + part.left, from + part.right,
                  pixels_.data() + static_cast<std::ptrdiff_t>(row) * imageWidth_ + part.left);
    }
    addDamage(other.bounds_);
}

} // namespace easel::paint
