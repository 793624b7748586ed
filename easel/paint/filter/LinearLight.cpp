// Colors between sRGB and linear light. The curve is that of colors that are not multiplied by alpha.
#include "easel/paint/filter/LinearLight.h"

#include "easel/drawing/SrgbCurve.h"
#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

#include <cmath>
#include <memory>

namespace easel::paint {

namespace {

// For each alpha, and for each level of a channel multiplied by it, the level after the change.
using LevelTable = std::array<std::array<std::uint8_t, 256>, 256>;

template <class Change> std::unique_ptr<const LevelTable> levelTable(Change change) {
    auto table = std::make_unique<LevelTable>();
    for (std::size_t alpha = 1; alpha < 256; ++alpha)
        for (std::size_t level = 0; level < 256; ++level) {
            const auto whole = static_cast<double>(alpha);
            const double value = change(std::min(static_cast<double>(level) / whole, 1.0));
            (*table)[alpha][level] = static_cast<std::uint8_t>(std::lround(value * whole));
        }
    return table;
}

Surface changedBy(const LevelTable& table, const Surface& picture) {
    return mapped(picture, [&table](std::uint32_t pixel) {
        const auto& row = table[alphaLevel(pixel)];
        return (pixel & 0xFF000000) | std::uint32_t{row[pixel >> 16 & 0xFF]} << 16 |
               std::uint32_t{row[pixel >> 8 & 0xFF]} << 8 | row[pixel & 0xFF];
    });
}

} // namespace

Surface inLinearLight(const Surface& picture) {
    static const std::unique_ptr<const LevelTable> kTable = levelTable(drawing::linearLightOf);
    return changedBy(*kTable, picture);
}

Surface inSrgb(const Surface& picture) {
    static const std::unique_ptr<const LevelTable> kTable = levelTable(drawing::srgbOf);
    return changedBy(*kTable, picture);
}

} // namespace easel::paint
