// Effects that look at more than one pixel, against plain loops over their definitions.
#include "tests/unit/paint/FilterPixels.h"

#include "easel/paint/filter/Convolve.h"
#include "easel/paint/filter/Displacement.h"
#include "easel/paint/filter/Morphology.h"
#include "easel/paint/filter/Offset.h"
#include "easel/paint/filter/Tile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace easel;
using namespace easel::paint;

TEST(Offsets, MoveByWholePixelsAndPartsOfThem) {
    const Surface picture = anyPicture(20, 20);
    for (const auto& [dx, dy] : {std::pair{3, -2}, {-5, 4}, {0, 0}, {25, 0}, {0, -25}}) {
        const Surface moved = movedBy(picture, {static_cast<double>(dx), static_cast<double>(dy)});
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 20; ++x)
                for (const unsigned shift : {0u, 24u})
                    ASSERT_EQ(levelAt(moved, x, y, shift), levelAt(picture, x - dx, y - dy, shift));
    }
    const Surface between = movedBy(picture, {1.25, -0.5});
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x) {
            const auto row = [&](int from) {
                return 0.75 * levelAt(picture, x - 1, from, 8) + 0.25 * levelAt(picture, x - 2, from, 8);
            };
            ASSERT_NEAR(levelAt(between, x, y, 8), (row(y) + row(y + 1)) / 2, 1.01) << x << ", " << y;
        }
    EXPECT_TRUE(samePixels(movedBy(picture, {1e30, 0}), Surface(20, 20)));
}

TEST(Morphology, TakesTheLowestOrHighestLevelAround) {
    using Operator = drawing::MorphologyEffect::Operator;
    const Surface picture = anyPicture(23, 17);
    for (const auto& [rx, ry] : {std::pair{1, 2}, {3, 0}, {0, 1}, {0, 0}, {30, 30}})
        for (const Operator how : {Operator::Erode, Operator::Dilate}) {
            const Surface result = morphed(how, rx, ry, picture);
            for (int y = 0; y < 17; ++y)
                for (int x = 0; x < 23; ++x)
                    for (const unsigned shift : {16u, 24u}) {
                        std::uint32_t found = levelAt(picture, x, y, shift);
                        for (int v = y - ry; v <= y + ry; ++v)
                            for (int u = x - rx; u <= x + rx; ++u)
                                found = how == Operator::Erode
                                            ? std::min(found, levelAt(picture, u, v, shift))
                                            : std::max(found, levelAt(picture, u, v, shift));
                        ASSERT_EQ(levelAt(result, x, y, shift), found) << rx << ", " << ry;
                    }
        }
}

TEST(Tiles, RepeatWhatTheyHoldInEveryDirection) {
    const Surface picture = anyPicture(30, 30);
    const PixelRect tile{.left = 7, .top = 11, .right = 12, .bottom = 18};
    const Surface result = tiled(picture, tile);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x)
            ASSERT_EQ(result.row(y)[x], picture.row(11 + (y + 3) % 7)[7 + (x + 3) % 5]) << x << ", " << y;
    EXPECT_TRUE(samePixels(tiled(picture, {}), Surface(30, 30)));
}

// The sum of the standard's formula, cell by cell.
double convolvedAt(const drawing::ConvolveEffect& e, const Surface& picture, int x, int y, unsigned shift) {
    double sum = 0;
    for (int i = 0; i < e.rows; ++i)
        for (int j = 0; j < e.columns; ++j) {
            int u = x - e.targetX + j;
            int v = y - e.targetY + i;
            if (e.edge == drawing::EdgeMode::Duplicate) {
                u = std::clamp(u, 0, picture.width() - 1);
                v = std::clamp(v, 0, picture.height() - 1);
            } else if (e.edge == drawing::EdgeMode::Wrap) {
                u = (u + 10 * picture.width()) % picture.width();
                v = (v + 10 * picture.height()) % picture.height();
            }
            const auto cell = static_cast<std::size_t>(e.columns - j - 1 + (e.rows - i - 1) * e.columns);
            sum += levelAt(picture, u, v, shift) * e.kernel[cell];
        }
    return sum / e.divisor + e.bias * levelAt(picture, x, y, 24);
}

TEST(Convolutions, SumTheCellsOfTheirKernelsTurned) {
    using drawing::EdgeMode;
    const Surface picture = anyPicture(13, 11);
    for (const EdgeMode edge : {EdgeMode::Duplicate, EdgeMode::Wrap, EdgeMode::None}) {
        drawing::ConvolveEffect effect;
        effect.columns = 3;
        effect.rows = 2;
        effect.kernel = {1, 2, 0.5, -1, 3, 0.25};
        effect.divisor = 6;
        effect.bias = 0.05;
        effect.targetX = 2;
        effect.targetY = 0;
        effect.edge = edge;
        const Surface result = convolved(effect, {1, 1}, picture);
        for (int y = 0; y < 11; ++y)
            for (int x = 0; x < 13; ++x) {
                const double alpha = std::clamp(convolvedAt(effect, picture, x, y, 24), 0.0, 255.0);
                ASSERT_NEAR(levelAt(result, x, y, 24), alpha, 0.51);
                ASSERT_NEAR(levelAt(result, x, y, 8),
                            std::clamp(convolvedAt(effect, picture, x, y, 8), 0.0, alpha), 0.51);
            }
    }
}

TEST(Convolutions, MayLeaveAlphaAsItIs) {
    drawing::ConvolveEffect effect;
    effect.kernel = {0, 0, 0, 0, 0.5, 0, 0, 0, 0};
    effect.keepsAlpha = true;
    const Surface result = convolved(effect, {1, 1}, plainPicture(3, 3, 0x80402000));
    EXPECT_EQ(result.row(1)[1], 0x80201000U);
}

TEST(Displacements, MoveByWhatTheMapsChannelsSay) {
    const Surface picture = anyPicture(20, 20);
    drawing::DisplacementEffect effect{8, drawing::DisplacementEffect::Channel::Red,
                                       drawing::DisplacementEffect::Channel::Blue};
    // Full red takes from half the scale to the right, no blue from half of it above.
    const Surface moved = displaced(effect, {8, 8}, picture, plainPicture(20, 20, 0xFFFF0000));
    // The same colors at half opacity count as they are before the multiplication.
    const Surface again = displaced(effect, {8, 8}, picture, plainPicture(20, 20, 0x80800000));
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(levelAt(moved, x, y, 8), levelAt(picture, x + 4, y - 4, 8)) << x << ", " << y;
    EXPECT_TRUE(samePixels(moved, again));
}

} // namespace
