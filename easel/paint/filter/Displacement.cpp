// feDisplacementMap (SVG 1.1, 15.15). The map's colors count as they are before they are multiplied by alpha.
#include "easel/paint/filter/Displacement.h"

#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

#include <cmath>

namespace easel::paint {

namespace {

using drawing::DisplacementEffect;

float channelOf(const Shade& shade, DisplacementEffect::Channel channel) {
    switch (channel) {
    case DisplacementEffect::Channel::Red:
        return shade.red;
    case DisplacementEffect::Channel::Green:
        return shade.green;
    case DisplacementEffect::Channel::Blue:
        return shade.blue;
    case DisplacementEffect::Channel::Alpha:
        break;
    }
    return shade.alpha;
}

} // namespace

Surface displaced(const DisplacementEffect& effect, drawing::Point reach, const Surface& picture,
                  const Surface& map) {
    Surface result(picture.width(), picture.height());
    forEachRow(picture, [&](int y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Shade shade = shadeOf(map.row(y)[x]);
            const double fromX = std::floor(x + 0.5 + reach.x * (channelOf(shade, effect.x) - 0.5));
            const double fromY = std::floor(y + 0.5 + reach.y * (channelOf(shade, effect.y) - 0.5));
            if (fromX >= 0 && fromY >= 0 && fromX < picture.width() && fromY < picture.height())
                result.row(y)[x] = picture.row(static_cast<int>(fromY))[static_cast<int>(fromX)];
        }
    });
    return result;
}

} // namespace easel::paint
