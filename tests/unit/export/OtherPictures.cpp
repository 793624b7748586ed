#include "OtherPictures.h"

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <cmath>
#include <memory>

using easel::paint::Surface;

Surface paintedByCairo(int width, int height, const std::function<void(cairo_t*)>& draw) {
    Surface surface(width, height);
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> image(
        cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(surface.row(0)),
                                            CAIRO_FORMAT_ARGB32, surface.width(), surface.height(),
                                            static_cast<int>(surface.stride())),
        &cairo_surface_destroy);
    const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> cairo(cairo_create(image.get()), &cairo_destroy);
    draw(cairo.get());
    return surface;
}

Surface paintedByLibrsvg(const std::filesystem::path& file, double unitsWide, double unitsHigh,
                         double scale) {
    const RsvgRectangle page{0, 0, unitsWide * scale, unitsHigh * scale};
    const auto pixels = [](double side) { return static_cast<int>(std::ceil(side)); };
    return paintedByCairo(pixels(page.width), pixels(page.height), [&](cairo_t* cairo) {
        RsvgHandle* const handle = rsvg_handle_new_from_file(file.c_str(), nullptr);
        if (!handle)
            return;
        rsvg_handle_set_dpi(handle, 96);
        rsvg_handle_render_document(handle, cairo, &page, nullptr);
        g_object_unref(handle);
    });
}
