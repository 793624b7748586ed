// feFlood (SVG 1.1, 15.16).
#include "easel/paint/filter/Flood.h"

#include "easel/drawing/SrgbCurve.h"
#include "easel/paint/filter/Shade.h"

namespace easel::paint {

std::uint32_t floodPixel(const drawing::FloodEffect& flood, bool linearLight) {
    const auto channel = [linearLight](std::uint16_t value) {
        const double srgb = value / 65535.0;
        return static_cast<float>(linearLight ? drawing::linearLightOf(srgb) : srgb);
    };
    return pixelOf({channel(flood.color.red), channel(flood.color.green), channel(flood.color.blue),
                    static_cast<float>(drawing::validOpacity(flood.opacity))});
}

} // namespace easel::paint
