// Memory of a surface.
#include "easel/paint/pixels/Surface.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include <sys/mman.h>

namespace easel::paint {

namespace {

constexpr std::ptrdiff_t kAlignment = 64;
constexpr std::size_t kHugePage = std::size_t{2} << 20;

std::ptrdiff_t strideFor(int width) {
    return (static_cast<std::ptrdiff_t>(width) * kBytesPerPixel + kAlignment - 1) / kAlignment * kAlignment;
}

} // namespace

Surface::Surface(int width, int height)
    : width_(std::max(width, 0)), height_(std::max(height, 0)), stride_(strideFor(width_)) {
    const auto bytes = static_cast<std::size_t>(stride_) * static_cast<std::size_t>(height_);
    const std::size_t alignment = bytes < kHugePage ? std::size_t{kAlignment} : kHugePage;
    void* memory = std::aligned_alloc(alignment, (bytes / alignment + 1) * alignment);
    if (!memory)
        throw std::bad_alloc();
    pixels_.reset(static_cast<std::uint32_t*>(memory));
    // The rows of a shape lie on as many pages as it has rows; large pages spare most of the address
    // look-ups. It does not matter if the system has none.
    if (bytes >= kHugePage)
        madvise(memory, bytes, MADV_HUGEPAGE);
    std::memset(memory, 0, bytes);
}

void Surface::clear(std::uint32_t pixel) {
    for (int y = 0; y < height_; ++y)
        std::fill_n(row(y), width_, pixel);
}

void Surface::Free::operator()(std::uint32_t* pixels) const {
    std::free(pixels);
}

} // namespace easel::paint
