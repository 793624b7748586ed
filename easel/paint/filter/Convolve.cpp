// feConvolveMatrix (SVG 1.1, 15.13): the kernel is laid on the picture turned by half a turn.
#include "easel/paint/filter/Convolve.h"

#include "easel/paint/filter/Edges.h"
#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

#include <vector>

namespace easel::paint {

namespace {

using drawing::ConvolveEffect;

// Multiplied by alpha or not, from 0 to 1: red, green, blue, alpha.
std::array<float, 4> channelsOf(std::uint32_t pixel, bool multiplied) {
    const Shade shade = shadeOf(pixel);
    const float factor = multiplied ? shade.alpha : 1;
    return {shade.red * factor, shade.green * factor, shade.blue * factor, shade.alpha};
}

struct Cell {
    int x; // from the pixel, in pixels
    int y;
    float weight;
};

std::vector<Cell> cellsOf(const ConvolveEffect& effect, PixelPoint step) {
    std::vector<Cell> cells;
    for (int i = 0; i < effect.rows; ++i)
        for (int j = 0; j < effect.columns; ++j) {
            const auto turned =
                static_cast<std::size_t>((effect.rows - 1 - i) * effect.columns + effect.columns - 1 - j);
            const auto weight = static_cast<float>(effect.kernel[turned] / effect.divisor);
            if (weight != 0)
                cells.push_back({(j - effect.targetX) * step.h, (i - effect.targetY) * step.v, weight});
        }
    return cells;
}

} // namespace

Surface convolved(const ConvolveEffect& effect, PixelPoint step, const Surface& picture) {
    const std::vector<Cell> cells = cellsOf(effect, step);
    const auto bias = static_cast<float>(effect.bias);
    const Edges columns{0, picture.width(), effect.edge};
    const Edges rows{0, picture.height(), effect.edge};
    const auto sumAt = [&](int x, int y) {
        std::array<float, 4> sum{};
        for (const Cell& cell : cells) {
            const int fromX = columns.placeFor(x + cell.x);
            const int fromY = rows.placeFor(y + cell.y);
            if (fromX < 0 || fromY < 0)
                continue;
            const auto channels = channelsOf(picture.row(fromY)[fromX], !effect.keepsAlpha);
            for (std::size_t c = 0; c < 4; ++c)
                sum[c] += channels[c] * cell.weight;
        }
        return sum;
    };
    Surface result(picture.width(), picture.height());
    forEachRow(picture, [&](int y) {
        for (int x = 0; x < picture.width(); ++x) {
            const float alpha = shadeOf(picture.row(y)[x]).alpha;
            std::array<float, 4> sum = sumAt(x, y);
            for (float& channel : sum)
                channel += bias * alpha;
            if (effect.keepsAlpha)
                result.row(y)[x] = pixelOf({sum[0], sum[1], sum[2], alpha});
            else
                result.row(y)[x] = pixelOfParts({sum[2] * 255, sum[1] * 255, sum[0] * 255, sum[3] * 255});
        }
    });
    return result;
}

} // namespace easel::paint
