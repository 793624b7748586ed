// Turns rows into columns, block by block, so that what is read and what is written both stay near.
#include "easel/paint/filter/Transpose.h"

#include "easel/paint/filter/PixelLoops.h"

namespace easel::paint {

Surface transposed(const Surface& picture) {
    constexpr int kBlock = 16;
    Surface result(picture.height(), picture.width());
    const int blocks = (picture.height() + kBlock - 1) / kBlock;
    inParts(blocks, picture.width() * kBlock, [&](int from, int to) {
        for (int top = from * kBlock; top < std::min(to * kBlock, picture.height()); top += kBlock)
            for (int left = 0; left < picture.width(); left += kBlock)
                for (int x = left; x < std::min(left + kBlock, picture.width()); ++x)
                    for (int y = top; y < std::min(top + kBlock, picture.height()); ++y)
                        result.row(x)[y] = picture.row(y)[x];
    });
    return result;
}

} // namespace easel::paint
