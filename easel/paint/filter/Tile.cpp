// feTile (SVG 1.1, 15.23).
#include "easel/paint/filter/Tile.h"

#include "easel/paint/filter/PixelLoops.h"

namespace easel::paint {

namespace {

// The place in the tile, begin to begin + size, that is repeated here.
int placeInTile(int place, int begin, int size) {
    const int past = (place - begin) % size;
    return begin + (past < 0 ? past + size : past);
}

} // namespace

Surface tiled(const Surface& picture, const PixelRect& tile) {
    Surface result(picture.width(), picture.height());
    if (tile.empty())
        return result;
    forEachRow(picture, [&](int y) {
        const int fromY = placeInTile(y, tile.top, tile.height());
        if (fromY < 0 || fromY >= picture.height())
            return;
        for (int x = 0; x < picture.width(); ++x) {
            const int fromX = placeInTile(x, tile.left, tile.width());
            if (fromX >= 0 && fromX < picture.width())
                result.row(y)[x] = picture.row(fromY)[fromX];
        }
    });
    return result;
}

} // namespace easel::paint
