// feColorMatrix (SVG 1.1, 15.10), on colors that are not multiplied by alpha.
#include "easel/paint/filter/ColorMatrix.h"

#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

namespace easel::paint {

Surface changedBy(const drawing::ColorMatrixEffect& effect, const Surface& picture) {
    std::array<float, 20> m;
    std::copy(effect.matrix.begin(), effect.matrix.end(), m.begin());
    const auto changed = [&m](std::uint32_t pixel) {
        const Shade s = shadeOf(pixel);
        const auto row = [&](std::size_t i) {
            return m[i] * s.red + m[i + 1] * s.green + m[i + 2] * s.blue + m[i + 3] * s.alpha + m[i + 4];
        };
        return pixelOf({row(0), row(5), row(10), row(15)});
    };
    const std::uint32_t ofNothing = changed(0);
    return mapped(picture, [&](std::uint32_t pixel) { return pixel == 0 ? ofNothing : changed(pixel); });
}

} // namespace easel::paint
