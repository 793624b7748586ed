// The row filters of PNG. The loops are plain enough for the compiler to turn them into vector code.
#include "easel/export/PngFilter.h"

#include <algorithm>
#include <cstdlib>

namespace easel::exports {
namespace {

using Byte = std::uint8_t;

// Of the three neighbours the one nearest to left + above - aboveLeft; ties go in that order.
Byte nearestNeighbour(int left, int above, int aboveLeft) {
    const int toLeft = std::abs(above - aboveLeft);
    const int toAbove = std::abs(left - aboveLeft);
    const int toAboveLeft = std::abs(above + left - 2 * aboveLeft);
    const int aboveOrCorner = toAbove <= toAboveLeft ? above : aboveLeft;
    return static_cast<Byte>(toLeft <= toAbove && toLeft <= toAboveLeft ? left : aboveOrCorner);
}

void filterSub(std::size_t pixel, std::size_t size, const Byte* row, Byte* out) {
    for (std::size_t i = pixel; i < size; ++i)
        out[i] = static_cast<Byte>(row[i] - row[i - pixel]);
}

void filterUp(std::size_t size, const Byte* row, const Byte* above, Byte* out) {
    for (std::size_t i = 0; i < size; ++i)
        out[i] = static_cast<Byte>(row[i] - above[i]);
}

void filterPaeth(std::size_t pixel, std::size_t size, const Byte* row, const Byte* above, Byte* out) {
    for (std::size_t i = pixel; i < size; ++i)
        out[i] = static_cast<Byte>(row[i] - nearestNeighbour(row[i - pixel], above[i], above[i - pixel]));
}

} // namespace

void filterPngRow(PngFilter filter, std::size_t bytesPerPixel, std::span<const std::uint8_t> row,
                  std::span<const std::uint8_t> above, std::span<std::uint8_t> out) {
    switch (filter) {
    case PngFilter::None:
        std::copy(row.begin(), row.end(), out.begin());
        return;
    case PngFilter::Sub:
        std::copy_n(row.begin(), bytesPerPixel, out.begin());
        return filterSub(bytesPerPixel, row.size(), row.data(), out.data());
    case PngFilter::Up:
        return filterUp(row.size(), row.data(), above.data(), out.data());
    case PngFilter::Paeth:
        // Left of the row all is 0, so the first pixel's guess is the pixel above.
        filterUp(bytesPerPixel, row.data(), above.data(), out.data());
        return filterPaeth(bytesPerPixel, row.size(), row.data(), above.data(), out.data());
    }
}

} // namespace easel::exports
