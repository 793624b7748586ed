// Layers that blend with what lies below.
#include "easel/paint/Layer.h"

#include "easel/paint/filter/Blend.h"

namespace easel::paint {

void Layer::blendWith(const SurfaceView& surface, double opacity, drawing::BlendMode mode) const {
    compose(surface, [&](std::uint32_t below, std::uint32_t pixel) {
        return blendedPixel(below, pixel, opacity, mode);
    });
}

} // namespace easel::paint
