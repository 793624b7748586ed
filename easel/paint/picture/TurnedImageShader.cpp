// An image that is shrunk is first made smaller by whole blocks of pixels, so that all of them count.
#include "easel/paint/picture/TurnedImageShader.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

using drawing::Affine;
using drawing::Point;

TurnedImageShader::TurnedImageShader(const SurfaceView& surface, const PixelRect& area, const Image& image,
                                     const Affine& toImage, double opacity)
    : surface_(surface), image_(image), toImage_(toImage), opacity_(opacity) {
    if (!image.smooth)
        return;
    drawing::Box box;
    for (const int x : {area.left, area.right})
        for (const int y : {area.top, area.bottom})
            box.add(toImage(Point{static_cast<double>(x), static_cast<double>(y)}));
    const Blocks across =
        blocksWithin(box.left, box.right, std::hypot(toImage.a, toImage.c), image.width, image.repeats);
    const Blocks down =
        blocksWithin(box.top, box.bottom, std::hypot(toImage.b, toImage.d), image.height, image.repeats);
    if (across.side > 1 || down.side > 1)
        shrink(across, down);
}

// An image that repeats is shrunk whole, and only to a size of whole blocks.
TurnedImageShader::Blocks TurnedImageShader::blocksWithin(double low, double high, double perPixel, int size,
                                                          bool repeats) {
    Blocks blocks{0, size, static_cast<int>(std::clamp<double>(std::floor(perPixel), 1, size))};
    if (repeats) {
        while (size % blocks.side != 0)
            --blocks.side;
        return blocks;
    }
    // Smooth edges reach a pixel further.
    const int last = (size - 1) / blocks.side;
    blocks.begin =
        static_cast<int>(std::clamp<double>(std::floor(low / blocks.side) - 1, 0, last)) * blocks.side;
    const double end = (std::ceil(high / blocks.side) + 1) * blocks.side;
    blocks.end = static_cast<int>(std::clamp<double>(end, blocks.begin + 1, size));
    return blocks;
}

void TurnedImageShader::shrink(const Blocks& across, const Blocks& down) {
    const int width = (across.end - across.begin + across.side - 1) / across.side;
    const int height = (down.end - down.begin + down.side - 1) / down.side;
    shrunk_.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    std::vector<MixedColor> sums(static_cast<std::size_t>(width));
    for (int top = down.begin; top < down.end; top += down.side) {
        const int bottom = std::min(top + down.side, down.end);
        std::fill(sums.begin(), sums.end(), MixedColor());
        for (int y = top; y < bottom; ++y)
            for (int x = across.begin; x < across.end; ++x)
                sums[static_cast<std::size_t>((x - across.begin) / across.side)].add(image_.row(y)[x], 1);
        for (int column = 0; column < width; ++column) {
            const int left = across.begin + column * across.side;
            const int count = (std::min(left + across.side, across.end) - left) * (bottom - top);
            MixedColor mean;
            mean.add(sums[static_cast<std::size_t>(column)], 1 / static_cast<float>(count));
            shrunk_.push_back(mean.pixel());
        }
    }
    toImage_ = Affine::scaling(1.0 / across.side, 1.0 / down.side) *
               Affine::translation(-across.begin, -down.begin) * toImage_;
    image_.pixels = shrunk_.data();
    image_.width = width;
    image_.height = height;
    image_.stride = width;
}

void TurnedImageShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* const pixels = surface_.row(y);
    for (const CoverageRun& run : runs) {
        const auto share = static_cast<float>(opacity_ * run.coverage / kFullCoverage);
        for (int x = run.begin; x < run.end; ++x)
            pixels[x] = colorAt(toImage_(Point{x + 0.5, y + 0.5})).over(pixels[x], share);
    }
}

MixedColor TurnedImageShader::colorAt(Point place) const {
    MixedColor color;
    if (!image_.smooth) {
        color.add(pixelAt(std::floor(place.x), std::floor(place.y)), 1);
        return color;
    }
    const Point before{std::floor(place.x - 0.5), std::floor(place.y - 0.5)};
    const auto right = static_cast<float>(place.x - 0.5 - before.x);
    const auto lower = static_cast<float>(place.y - 0.5 - before.y);
    color.add(pixelAt(before.x, before.y), (1 - right) * (1 - lower));
    color.add(pixelAt(before.x + 1, before.y), right * (1 - lower));
    color.add(pixelAt(before.x, before.y + 1), (1 - right) * lower);
    color.add(pixelAt(before.x + 1, before.y + 1), right * lower);
    return color;
}

std::uint32_t TurnedImageShader::pixelAt(double x, double y) const {
    const auto inside = [this](double at, int size) {
        const double wrapped = image_.repeats ? at - std::floor(at / size) * size : at;
        return static_cast<int>(std::clamp<double>(wrapped, 0, size - 1));
    };
    return image_.row(inside(y, image_.height))[inside(x, image_.width)];
}

} // namespace easel::paint
