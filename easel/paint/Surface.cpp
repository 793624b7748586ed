// Memory of a surface.
#include "easel/paint/Surface.h"

#include <cstring>
#include <new>

namespace easel::paint {

namespace {

constexpr std::ptrdiff_t kAlignment = 64;

std::ptrdiff_t strideFor(int width) {
    return (static_cast<std::ptrdiff_t>(width) * 4 + kAlignment - 1) / kAlignment * kAlignment;
}

} // namespace

Surface::Surface(int width, int height)
    : width_(std::max(width, 0)), height_(std::max(height, 0)), stride_(strideFor(width_)) {
    const auto bytes = static_cast<std::size_t>(stride_) * static_cast<std::size_t>(height_);
    void* memory = ::operator new (bytes, std::align_val_t{kAlignment});
    pixels_.reset(static_cast<std::uint32_t*>(memory));
    std::memset(memory, 0, bytes);
}

void Surface::clear(std::uint32_t pixel) {
    for (int y = 0; y < height_; ++y)
        std::fill_n(row(y), width_, pixel);
}

void Surface::Free::operator()(std::uint32_t* pixels) const {
    ::operator delete (pixels, std::align_val_t{kAlignment});
}

} // namespace easel::paint
