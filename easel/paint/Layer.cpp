// Composing layers. Weights are whole 65536ths, and each channel is rounded once.
#include "easel/paint/Layer.h"

#include <cmath>

namespace easel::paint {

namespace {

constexpr std::uint32_t kFull = 65536;

std::uint32_t channel(std::uint32_t pixel, unsigned shift) {
    return pixel >> shift & 255;
}

std::uint32_t multiplied(std::uint32_t pixel, std::uint32_t alpha) {
    const auto part = [&](unsigned shift) { return (channel(pixel, shift) * alpha + 127) / 255 << shift; };
    return part(24) | part(16) | part(8) | part(0);
}

std::uint32_t composed(std::uint32_t below, std::uint32_t above, std::uint32_t weight) {
    // What is left of the pixel below: 1 - alpha * weight.
    const std::uint32_t kept = (255 * kFull - channel(above, 24) * weight) / 255;
    const auto part = [&](unsigned shift) {
        return (channel(above, shift) * weight + channel(below, shift) * kept + kFull / 2) / kFull << shift;
    };
    return part(24) | part(16) | part(8) | part(0);
}

int clampedToInt(double value, int low, int high) {
    return value > low ? value < high ? static_cast<int>(value) : high : low;
}

} // namespace

PixelBox pixelsUnder(const drawing::Box& box, const drawing::Affine& toSurface, const PixelBox& limit) {
    if (box.empty())
        return {};
    drawing::Box mapped;
    for (const drawing::Point corner :
         {drawing::Point{box.left, box.top}, drawing::Point{box.right, box.top},
          drawing::Point{box.left, box.bottom}, drawing::Point{box.right, box.bottom}}) {
        const drawing::Point p = toSurface(corner);
        if (!isFinite(p))
            return limit;
        mapped.add(p);
    }
    return {clampedToInt(std::floor(mapped.left), limit.left, limit.right),
            clampedToInt(std::floor(mapped.top), limit.top, limit.bottom),
            clampedToInt(std::ceil(mapped.right), limit.left, limit.right),
            clampedToInt(std::ceil(mapped.bottom), limit.top, limit.bottom)};
}

Layer::Layer(const PixelBox& place) : place_(place), pixels_(place.width(), place.height()) {}

drawing::Affine Layer::mapped(const drawing::Affine& toSurface) const {
    return drawing::Affine::translation(-place_.left, -place_.top) * toSurface;
}

void Layer::maskWith(const Layer& mask) {
    for (int y = 0; y < pixels_.height(); ++y) {
        std::uint32_t* const row = pixels_.row(y);
        const std::uint32_t* const alpha = mask.pixels_.row(y);
        for (int x = 0; x < pixels_.width(); ++x)
            row[x] = multiplied(row[x], channel(alpha[x], 24));
    }
}

void Layer::layOn(const SurfaceView& surface, double opacity) const {
    const auto weight = static_cast<std::uint32_t>(std::lrint(std::clamp(opacity, 0.0, 1.0) * kFull));
    const PixelBox box = place_.intersection(surface.clip());
    for (int y = box.top; y < box.bottom; ++y) {
        std::uint32_t* const below = surface.row(y);
        const std::uint32_t* const above = pixels_.row(y - place_.top);
        for (int x = box.left; x < box.right; ++x)
            below[x] = composed(below[x], above[x - place_.left], weight);
    }
}

} // namespace easel::paint
