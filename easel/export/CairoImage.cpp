#include "easel/export/CairoImage.h"

#include <algorithm>
#include <new>

namespace easel::exports {

CairoImage imageOf(const paint::Surface& pixels) {
    CairoImage image(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels.width(), pixels.height()),
                     &cairo_surface_destroy);
    if (cairo_surface_status(image.get()) != CAIRO_STATUS_SUCCESS)
        throw std::bad_alloc();
    unsigned char* const data = cairo_image_surface_get_data(image.get());
    const int stride = cairo_image_surface_get_stride(image.get());
    for (int y = 0; y < pixels.height(); ++y)
        std::copy_n(reinterpret_cast<const unsigned char*>(pixels.row(y)), pixels.width() * 4,
                    data + static_cast<std::ptrdiff_t>(y) * stride);
    cairo_surface_mark_dirty(image.get());
    return image;
}

} // namespace easel::exports
