// Pixels to paint on: 32 bits each, premultiplied alpha, laid out as Cairo's ARGB32 image surfaces are.
#pragma once

#include "easel/paint/pixels/PixelGeometry.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace easel::paint {

constexpr std::ptrdiff_t kBytesPerPixel = sizeof(std::uint32_t);

// Pixels owned by someone else, with the box outside of which nothing is painted. A pixel is 0xAARRGGBB in
// the machine's byte order.
class SurfaceView {
  public:
    SurfaceView() = default;
    // `stride` is the distance between rows in bytes, a multiple of kBytesPerPixel.
    SurfaceView(std::uint32_t* pixels, int width, int height, std::ptrdiff_t stride)
        : pixels_(pixels), width_(width), height_(height),
          stride_(stride), clip_{.right = width, .bottom = height} {}

    int width() const { return width_; }
    int height() const { return height_; }
    std::ptrdiff_t stride() const { return stride_; }
    std::uint32_t* row(int y) const { return pixels_ + y * (stride_ / kBytesPerPixel); }

    // Always within the surface.
    const PixelRect& clip() const { return clip_; }
    // The same pixels, painted only where both the present clip and `box` allow it.
    SurfaceView clippedTo(const PixelRect& box) const {
        SurfaceView view = *this;
        view.clip_ = clip_.intersection(box);
        return view;
    }

  private:
    std::uint32_t* pixels_ = nullptr;
    int width_ = 0;
    int height_ = 0;
    std::ptrdiff_t stride_ = 0;
    PixelRect clip_;
};

// A surface with pixels of its own, transparent black at first. Rows begin on 64-byte boundaries.
class Surface {
  public:
    // Throws std::bad_alloc when there is no memory for it. Sizes below 1 give an empty surface.
    Surface(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    std::ptrdiff_t stride() const { return stride_; }
    std::uint32_t* row(int y) { return pixels_.get() + y * (stride_ / kBytesPerPixel); }
    const std::uint32_t* row(int y) const { return pixels_.get() + y * (stride_ / kBytesPerPixel); }
    SurfaceView view() { return {pixels_.get(), width_, height_, stride_}; }
    void clear(std::uint32_t pixel);

  private:
    struct Free {
        void operator()(std::uint32_t* pixels) const;
    };
    int width_;
    int height_;
    std::ptrdiff_t stride_;
    std::unique_ptr<std::uint32_t, Free> pixels_;
};

} // namespace easel::paint
