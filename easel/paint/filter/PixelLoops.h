// Goes over all pixels of a picture, shared between processors where there are many.
#pragma once

#include "easel/paint/pixels/Parallel.h"
#include "easel/paint/pixels/Surface.h"

namespace easel::paint {

// Calls work(from, to) for parts of 0 to `count`, each of which costs `pixels`; the parts do not depend on
// how many threads there are.
template <class Work> void inParts(int count, int pixels, Work work) {
    constexpr int kPixelsPerPart = 1 << 15;
    const int size = std::max(kPixelsPerPart / std::max(pixels, 1), 1);
    const auto parts = static_cast<std::size_t>((count + size - 1) / size);
    forEachPiece(parts, parts > 2 ? usefulThreads() : 1, [&](std::size_t part) {
        const int from = static_cast<int>(part) * size;
        work(from, std::min(from + size, count));
    });
}

// Calls work(y) for each row.
template <class Work> void forEachRow(const Surface& picture, Work work) {
    inParts(picture.height(), picture.width(), [&](int from, int to) {
        for (int y = from; y < to; ++y)
            work(y);
    });
}

// A picture of the same size whose pixels are change(pixel).
template <class Change> Surface mapped(const Surface& picture, Change change) {
    Surface result(picture.width(), picture.height());
    forEachRow(picture, [&](int y) {
        const std::uint32_t* const from = picture.row(y);
        std::uint32_t* const to = result.row(y);
        for (int x = 0; x < picture.width(); ++x)
            to[x] = change(from[x]);
    });
    return result;
}

// The same of the pixels of two pictures of one size.
template <class Combine> Surface combined(const Surface& one, const Surface& other, Combine combine) {
    Surface result(one.width(), one.height());
    forEachRow(one, [&](int y) {
        const std::uint32_t* const a = one.row(y);
        const std::uint32_t* const b = other.row(y);
        std::uint32_t* const to = result.row(y);
        for (int x = 0; x < one.width(); ++x)
            to[x] = combine(a[x], b[x]);
    });
    return result;
}

} // namespace easel::paint
