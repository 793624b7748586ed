// Decodes pictures with gdk-pixbuf.
#include "easel/pictures/PixelLoader.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cstddef>
#include <new>

namespace easel::pictures {

namespace {

// The size stands near the beginning, so that little is decoded before it is known.
constexpr std::size_t kPiece = 1024;

// One file on its way through a loader. What the loader makes of an error is none of our concern: what could
// be decoded before it is shown.
class Loader {
  public:
    explicit Loader(const Format& format, std::optional<PixelSize> expected)
        : loader_(gdk_pixbuf_loader_new_with_type(format.loader, nullptr)), expected_(expected) {
        if (loader_)
            g_signal_connect(loader_, "size-prepared", G_CALLBACK(&Loader::sizePrepared), this);
    }
    Loader(const Loader&) = delete;
    Loader& operator=(const Loader&) = delete;
    ~Loader() {
        close();
        if (loader_)
            g_object_unref(loader_);
    }

    // False if there is no more use in it.
    bool write(std::string_view bytes) {
        return loader_ && gdk_pixbuf_loader_write(loader_, reinterpret_cast<const guchar*>(bytes.data()),
                                                  bytes.size(), nullptr);
    }
    void close() {
        if (loader_ && !closed_)
            gdk_pixbuf_loader_close(loader_, nullptr);
        closed_ = true;
    }
    // That the file states, once it is known.
    const std::optional<PixelSize>& size() const { return size_; }
    // Belongs to the loader; null if there is none.
    GdkPixbuf* picture() const { return loader_ ? gdk_pixbuf_loader_get_pixbuf(loader_) : nullptr; }

  private:
    // A size of nothing makes the loader stop before it asks for memory.
    static void sizePrepared(GdkPixbufLoader* loader, int width, int height, Loader* self) {
        self->size_ = PixelSize{width, height};
        const auto& expected = self->expected_;
        if (!expected || expected->width != width || expected->height != height)
            gdk_pixbuf_loader_set_size(loader, 0, 0);
    }

    GdkPixbufLoader* loader_;
    std::optional<PixelSize> expected_;
    std::optional<PixelSize> size_;
    bool closed_ = false;
};

std::uint32_t multiplied(std::uint32_t level, std::uint32_t alpha) {
    return (level * alpha + 127) / 255;
}

std::uint32_t pixelOf(const guchar* levels, bool hasAlpha) {
    const std::uint32_t alpha = hasAlpha ? levels[3] : 255;
    return alpha << 24 | multiplied(levels[0], alpha) << 16 | multiplied(levels[1], alpha) << 8 |
           multiplied(levels[2], alpha);
}

std::vector<std::uint32_t> pixelsOf(const GdkPixbuf* picture, PixelSize size) {
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
    const bool hasAlpha = gdk_pixbuf_get_has_alpha(picture) != 0;
    const int channels = gdk_pixbuf_get_n_channels(picture);
    const guchar* const first = gdk_pixbuf_read_pixels(picture);
    const auto stride = static_cast<std::ptrdiff_t>(gdk_pixbuf_get_rowstride(picture));
    for (int y = 0; y < size.height; ++y) {
        const guchar* levels = first + y * stride;
        for (int x = 0; x < size.width; ++x, levels += channels)
            pixels.push_back(pixelOf(levels, hasAlpha));
    }
    return pixels;
}

class PixbufLoader : public PixelLoader {
  public:
    std::optional<PixelSize> size(std::string_view bytes, const Format& format) override;
    std::shared_ptr<const drawing::PicturePixels> pixels(std::string_view bytes, const Format& format,
                                                         PixelSize size) override;
};

std::optional<PixelSize> PixbufLoader::size(std::string_view bytes, const Format& format) {
    Loader loader(format, std::nullopt);
    while (!loader.size() && !bytes.empty() && loader.write(bytes.substr(0, kPiece)))
        bytes.remove_prefix(std::min(kPiece, bytes.size()));
    // Some loaders say nothing before they have the whole.
    loader.close();
    return loader.size();
}

std::shared_ptr<const drawing::PicturePixels> PixbufLoader::pixels(std::string_view bytes,
                                                                   const Format& format, PixelSize size) {
    Loader loader(format, size);
    loader.write(bytes);
    loader.close();
    const GdkPixbuf* const picture = loader.picture();
    if (!picture || gdk_pixbuf_get_width(picture) != size.width ||
        gdk_pixbuf_get_height(picture) != size.height || gdk_pixbuf_get_bits_per_sample(picture) != 8)
        return nullptr;
    return std::make_shared<const drawing::PicturePixels>(
        drawing::PicturePixels{size.width, size.height, pixelsOf(picture, size)});
}

} // namespace

extern "C" [[gnu::visibility("default")]] PixelLoader* easelPixelLoader() {
    static PixbufLoader loader;
    return &loader;
}

} // namespace easel::pictures
