// feMorphology (SVG 1.1, 15.20): the lowest or highest level of each channel, multiplied by alpha, in a
// rectangle, which is found for its rows and then for its columns.
#include "easel/paint/filter/Morphology.h"

#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Transpose.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace easel::paint {

namespace {

using Operator = drawing::MorphologyEffect::Operator;

// Of each byte and the one `ahead` pixels on, whichever is chosen.
template <class Choose> void chooseAhead(std::vector<std::uint32_t>& row, int ahead, Choose choose) {
    auto* const bytes = reinterpret_cast<std::uint8_t*>(row.data());
    const int distance = ahead * static_cast<int>(kBytesPerPixel);
    const int count = static_cast<int>(row.size()) * static_cast<int>(kBytesPerPixel) - distance;
    for (int i = 0; i < count; ++i)
        bytes[i] = choose(bytes[i], bytes[i + distance]);
}

// Of each pixel and the `size - 1` after it; what is known of half as many tells it of all.
template <class Choose> void chooseRuns(std::vector<std::uint32_t>& row, int size, Choose choose) {
    int known = 1;
    for (; known * 2 <= size; known *= 2)
        chooseAhead(row, known, choose);
    chooseAhead(row, size - known, choose);
}

template <class Choose> Surface chosenInRows(const Surface& picture, int radius, Choose choose) {
    const int width = picture.width();
    const int reach = std::min(radius, width);
    Surface result(width, picture.height());
    inParts(picture.height(), width, [&](int from, int to) {
        std::vector<std::uint32_t> row(static_cast<std::size_t>(width + 2 * reach));
        for (int y = from; y < to; ++y) {
            std::fill(row.begin(), row.end(), 0);
            std::copy(picture.row(y), picture.row(y) + width, row.begin() + reach);
            chooseRuns(row, 2 * reach + 1, choose);
            std::copy(row.begin(), row.begin() + width, result.row(y));
        }
    });
    return result;
}

template <class Choose> Surface chosen(const Surface& picture, int radiusX, int radiusY, Choose choose) {
    Surface rows = chosenInRows(picture, radiusX, choose);
    return radiusY == 0 ? std::move(rows) : transposed(chosenInRows(transposed(rows), radiusY, choose));
}

} // namespace

Surface morphed(Operator how, int radiusX, int radiusY, const Surface& picture) {
    if (how == Operator::Dilate)
        return chosen(picture, radiusX, radiusY,
                      [](std::uint8_t a, std::uint8_t b) { return std::max(a, b); });
    return chosen(picture, radiusX, radiusY, [](std::uint8_t a, std::uint8_t b) { return std::min(a, b); });
}

} // namespace easel::paint
