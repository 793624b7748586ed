// Composing layers. Weights are whole 65536ths, and each channel is rounded once.
#include "easel/paint/Layer.h"

#include "easel/paint/filter/Shade.h"

#include <array>
#include <cmath>

namespace easel::paint {

namespace {

constexpr std::uint32_t kFull = 65536;

// Two channels, 32 bits apart.
std::uint64_t twoApart(std::uint32_t channels) {
    const std::uint64_t both = channels & 0x00FF00FF;
    return (both | both << 16) & 0x000000FF000000FF;
}

// Two channels of a pixel composed at once.
std::uint32_t twoComposed(std::uint32_t below, std::uint32_t above, std::uint32_t weight,
                          std::uint32_t kept) {
    constexpr std::uint64_t kHalves = std::uint64_t{kFull / 2} << 32 | kFull / 2;
    const std::uint64_t sums = twoApart(above) * weight + twoApart(below) * kept + kHalves;
    return static_cast<std::uint32_t>(sums >> 16 & 0xFF) |
           static_cast<std::uint32_t>(sums >> 32 & 0x00FF0000);
}

std::uint32_t composed(std::uint32_t below, std::uint32_t above, std::uint32_t weight, std::uint32_t kept) {
    return twoComposed(below >> 8, above >> 8, weight, kept) << 8 | twoComposed(below, above, weight, kept);
}

// What is left of a pixel below one of each alpha: 1 - alpha * weight.
std::array<std::uint32_t, 256> keptUnder(std::uint32_t weight) {
    std::array<std::uint32_t, 256> kept{};
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha)
        kept[alpha] = (255 * kFull - alpha * weight) / 255;
    return kept;
}

int clampedToInt(double value, int low, int high) {
    return value > low ? value < high ? static_cast<int>(value) : high : low;
}

} // namespace

PixelRect pixelsUnder(const drawing::Box& box, const drawing::Affine& toSurface, const PixelRect& limit) {
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
    return {.left = clampedToInt(std::floor(mapped.left), limit.left, limit.right),
            .top = clampedToInt(std::floor(mapped.top), limit.top, limit.bottom),
            .right = clampedToInt(std::ceil(mapped.right), limit.left, limit.right),
            .bottom = clampedToInt(std::ceil(mapped.bottom), limit.top, limit.bottom)};
}

Layer::Layer(const PixelRect& place) : place_(place), pixels_(place.width(), place.height()) {}

drawing::Affine Layer::mapped(const drawing::Affine& toSurface) const {
    return drawing::Affine::translation(-place_.left, -place_.top) * toSurface;
}

void Layer::maskWith(const Layer& mask) {
    for (int y = 0; y < pixels_.height(); ++y) {
        std::uint32_t* const row = pixels_.row(y);
        const std::uint32_t* const alpha = mask.pixels_.row(y);
        for (int x = 0; x < pixels_.width(); ++x)
            row[x] = shareOf(row[x], alphaLevel(alpha[x]));
    }
}

void Layer::layOn(const SurfaceView& surface, double opacity) const {
    const auto weight = static_cast<std::uint32_t>(std::lrint(std::clamp(opacity, 0.0, 1.0) * kFull));
    const std::array<std::uint32_t, 256> kept = keptUnder(weight);
    compose(surface, [&](std::uint32_t below, std::uint32_t pixel) {
        return composed(below, pixel, weight, kept[alphaLevel(pixel)]);
    });
}

} // namespace easel::paint
