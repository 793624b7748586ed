#include "easel/paint/picture/StraightImageShader.h"

#include <algorithm>

namespace easel::paint {

StraightImageShader::StraightImageShader(const SurfaceView& surface, const PixelRect& area,
                                         const Image& image, const drawing::Affine& toImage, double opacity)
    : surface_(surface), image_(image), opacity_(opacity),
      across_({image.width, image.repeats, image.smooth}, toImage.a, toImage.e, area.left, area.right),
      down_({image.height, image.repeats, image.smooth}, toImage.d, toImage.f, area.top, area.bottom),
      columns_(static_cast<std::size_t>(std::max(across_.highest() - across_.lowest() + 1, 0))) {}

void StraightImageShader::row(int y, std::span<const CoverageRun> runs) {
    mixColumns(down_.of(y));
    std::uint32_t* const pixels = surface_.row(y);
    for (const CoverageRun& run : runs) {
        const auto share = static_cast<float>(opacity_ * run.coverage / kFullCoverage);
        for (int x = run.begin; x < run.end; ++x) {
            MixedColor color;
            for (const Tap& tap : across_.of(x))
                color.add(columns_[static_cast<std::size_t>(tap.at - across_.lowest())], tap.weight);
            pixels[x] = color.over(pixels[x], share);
        }
    }
}

void StraightImageShader::mixColumns(std::span<const Tap> rows) {
    const int only = rows.size() == 1 ? rows.front().at : -1;
    if (only >= 0 && only == onlyRow_)
        return;
    onlyRow_ = only;
    std::fill(columns_.begin(), columns_.end(), MixedColor());
    for (const Tap& tap : rows) {
        const std::uint32_t* pixel = image_.row(tap.at) + across_.lowest();
        for (MixedColor& column : columns_)
            column.add(*pixel++, tap.weight);
    }
}

} // namespace easel::paint
