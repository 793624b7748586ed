#include "easel/pictures/EncodedPicture.h"

#include "easel/memory/LibraryCall.h"
#include "easel/pictures/PixelLoader.h"
#include "easel/pictures/RecentPixels.h"

#include <mutex>
#include <utility>

namespace easel::pictures {

namespace {

class EncodedPicture : public drawing::Picture {
  public:
    EncodedPicture(std::string bytes, const Format& format, PixelSize size)
        : bytes_(std::move(bytes)), format_(format), size_(size) {}
    ~EncodedPicture() override {
        if (const auto pixels = decoded_.lock())
            RecentPixels::shared().forget(pixels);
    }

    int width() const override { return size_.width; }
    int height() const override { return size_.height; }
    std::string_view bytes() const override { return bytes_; }
    std::string_view mediaType() const override { return format_.mediaType; }

    std::shared_ptr<const drawing::PicturePixels> pixels() const override {
        const std::lock_guard lock(mutex_);
        if (damaged_)
            return nullptr;
        auto pixels = decoded_.lock();
        if (!pixels)
            pixels = memory::complete([&] { return pixelLoader()->pixels(bytes_, format_, size_); });
        damaged_ = !pixels;
        decoded_ = pixels;
        if (pixels)
            RecentPixels::shared().keep(pixels);
        return pixels;
    }

  private:
    std::string bytes_;
    const Format& format_;
    PixelSize size_;
    mutable std::mutex mutex_; // guards what follows
    mutable std::weak_ptr<const drawing::PicturePixels> decoded_;
    mutable bool damaged_ = false;
};

} // namespace

Opened openPicture(std::string bytes) {
    const Format* const format = formatOf(bytes);
    PixelLoader* const loader = format ? pixelLoader() : nullptr;
    if (!loader)
        return Refusal::UnknownFormat;
    const auto size = memory::complete([&] { return loader->size(bytes, *format); });
    if (!size || size->width < 1 || size->height < 1)
        return Refusal::Damaged;
    if (std::int64_t{size->width} * size->height > kMostPixels)
        return Refusal::TooLarge;
    return std::make_shared<const EncodedPicture>(std::move(bytes), *format, *size);
}

} // namespace easel::pictures
