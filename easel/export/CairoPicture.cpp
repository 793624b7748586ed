// A surface keeps what its pixels and its data lie in for as long as Cairo keeps the surface.
#include "easel/export/CairoPicture.h"

#include <cairo.h>

namespace easel::exports {

namespace {

// The owner lives until the surface, or what was attached to it, is gone.
template <class Owner> void release(void* owner) {
    delete static_cast<std::shared_ptr<const Owner>*>(owner);
}

cairo_surface_t* madeOf(std::shared_ptr<const drawing::PicturePixels> pixels) {
    static const cairo_user_data_key_t kPixels{};
    // Cairo only reads what it paints with.
    auto* const data = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(pixels->pixels.data()));
    cairo_surface_t* const surface = cairo_image_surface_create_for_data(
        data, CAIRO_FORMAT_ARGB32, pixels->width, pixels->height, pixels->width * 4);
    auto owner = std::make_unique<std::shared_ptr<const drawing::PicturePixels>>(std::move(pixels));
    if (cairo_surface_set_user_data(surface, &kPixels, owner.get(), release<drawing::PicturePixels>) ==
        CAIRO_STATUS_SUCCESS)
        static_cast<void>(owner.release());
    return surface;
}

// The file itself goes into a PDF where the format allows it.
void attachFile(cairo_surface_t* surface, const std::shared_ptr<const drawing::Picture>& picture) {
    if (picture->mediaType() != "image/jpeg")
        return;
    const auto* const data = reinterpret_cast<const unsigned char*>(picture->bytes().data());
    auto owner = std::make_unique<std::shared_ptr<const drawing::Picture>>(picture);
    if (cairo_surface_set_mime_data(surface, CAIRO_MIME_TYPE_JPEG, data, picture->bytes().size(),
                                    release<drawing::Picture>, owner.get()) == CAIRO_STATUS_SUCCESS)
        static_cast<void>(owner.release());
}

} // namespace

void CairoPictures::Destroy::operator()(cairo_surface_t* surface) const {
    cairo_surface_destroy(surface);
}

cairo_surface_t* CairoPictures::surfaceOf(const std::shared_ptr<const drawing::Picture>& picture) {
    const auto [known, isNew] = surfaces_.try_emplace(picture);
    if (isNew) {
        if (auto pixels = picture->pixels())
            known->second.reset(madeOf(std::move(pixels)));
        if (known->second)
            attachFile(known->second.get(), picture);
    }
    cairo_surface_t* const surface = known->second.get();
    return surface && cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS ? surface : nullptr;
}

} // namespace easel::exports
