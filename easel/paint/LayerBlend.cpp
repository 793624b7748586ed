// Layers that blend with what lies below.
#include "easel/paint/Layer.h"

#include "easel/paint/filter/Blend.h"

namespace easel::paint {

void Layer::blendWith(const SurfaceView& surface, double opacity, drawing::BlendMode mode) const {
    const PixelRect box = place_.intersection(surface.clip());
    for (int y = box.top; y < box.bottom; ++y) {
        std::uint32_t* const below = surface.row(y);
        const std::uint32_t* const above = pixels_.row(y - place_.top);
        for (int x = box.left; x < box.right; ++x)
            if (const std::uint32_t pixel = above[x - place_.left])
                below[x] = blendedPixel(below[x], pixel, opacity, mode);
    }
}

} // namespace easel::paint
