// What the feedback of a drag looks like, pixel by pixel.
#include "easel/runtime/Feedback.h"
#include "easel/paint/pixels/Surface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace easel::runtime {
namespace {

using testing::ElementsAre;

constexpr std::uint32_t kGround = 0xff404040;
// Three quarters white on it: 0.75 * 255 + 0.25 * 64.
constexpr int kEdge = 207;

char letterOf(std::uint32_t pixel) {
    if (pixel == kGround)
        return '.';
    if (pixel == 0xff000000)
        return '#';
    for (const int shift : {0, 8, 16})
        if (std::abs(static_cast<int>(pixel >> shift & 0xff) - kEdge) > 1)
            return '?';
    return 'o';
}

// The pixels of a dark ground with the lines on it: '#' black, 'o' the light edge, '.' the ground.
std::vector<std::string> pictureOf(const std::vector<ConstructionLine>& lines,
                                   const drawing::Affine& toImage = {1, 0, 0, 1, 0, 0}) {
    paint::Surface surface(7, 7);
    surface.clear(kGround);
    drawFeedback(lines, toImage, surface.view());
    std::vector<std::string> rows;
    for (int y = 0; y < surface.height(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < surface.width(); ++x)
            rows.back() += letterOf(surface.row(y)[x]);
    }
    return rows;
}

TEST(Feedback, ALineIsOneBlackPixelWideBetweenLightEdgesAsWide) {
    EXPECT_THAT(pictureOf({{{1, 3.5}, {6, 3.5}}}),
                ElementsAre(".......", ".......", ".ooooo.", ".#####.", ".ooooo.", ".......", "......."));
    EXPECT_THAT(pictureOf({{{3.5, 6}, {3.5, 1}}}),
                ElementsAre(".......", "..o#o..", "..o#o..", "..o#o..", "..o#o..", "..o#o..", "......."));
}

TEST(Feedback, ALineIsNoWiderInALargerImage) {
    EXPECT_THAT(pictureOf({{{1, 1.75}, {2.5, 1.75}}}, {2, 0, 0, 2, 1, 0}),
                ElementsAre(".......", ".......", "...ooo.", "...###.", "...ooo.", ".......", "......."));
}

TEST(Feedback, AShortLineIsSeenAndOneWithoutLengthIsNot) {
    EXPECT_THAT(pictureOf({{{3, 3.5}, {4, 3.5}}}),
                ElementsAre(".......", ".......", "...o...", "...#...", "...o...", ".......", "......."));
    EXPECT_THAT(pictureOf({{{3, 3.5}, {3, 3.5}}}), testing::Each("......."));
}

TEST(Feedback, TheEdgeOfALineLiesBelowAllLines) {
    const ConstructionLine across{{1, 3.5}, {6, 3.5}};
    const ConstructionLine down{{3.5, 1}, {3.5, 6}};
    const std::vector<std::vector<ConstructionLine>> orders{{across, down}, {down, across}};
    for (const auto& lines : orders) {
        const auto rows = pictureOf(lines);
        EXPECT_EQ(rows[3], ".#####.");
        for (int y = 1; y < 6; ++y)
            EXPECT_EQ(rows[static_cast<std::size_t>(y)][3], '#');
    }
}

} // namespace
} // namespace easel::runtime
