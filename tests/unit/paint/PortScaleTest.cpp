// The same drawing on screens with more than one pixel for each of the dialog's.
#include "tests/unit/paint/PortPicture.h"

#include <gtest/gtest.h>

namespace easel::paint {
namespace {

void drawOnGrid(Port& port) {
    port.paintRect({.left = 1, .top = 1, .right = 4, .bottom = 3});
    port.frameRect({.left = 5, .top = 0, .right = 9, .bottom = 6});
    port.moveTo({0, 7});
    port.lineTo({8, 7});
}

TEST(PortScale, StraightThingsAreBlocksOfScreenPixelsAtScaleTwo) {
    Port single({.right = 10, .bottom = 8}, 1.0, 0xffffff);
    Port twofold({.right = 10, .bottom = 8}, 2.0, 0xffffff);
    drawOnGrid(single);
    drawOnGrid(twofold);
    const Picture small = picture(single);
    const Picture large = picture(twofold);
    ASSERT_EQ(large.size(), 16u);
    for (std::size_t v = 0; v < large.size(); ++v)
        for (std::size_t h = 0; h < large[v].size(); ++h)
            EXPECT_EQ(large[v][h], small[v / 2][h / 2]) << v << ' ' << h;
}

TEST(PortScale, SlantedLinesUseTheScreensOwnPixels) {
    Port port({.right = 4, .bottom = 3}, 2.0, 0xffffff);
    port.moveTo({0, 0});
    port.lineTo({2, 1});
    // From (0, 0) to (4, 2) on the screen, through (1, 1), (2, 1) and (3, 2), with a nib of two by two.
    EXPECT_EQ(picture(port), (Picture{"##......", //
                                      "####....", //
                                      ".#####..", //
                                      "...###..", //
                                      "........", //
                                      "........"}));
}

TEST(PortScale, EqualFramesAreEquallyThickEverywhereAtScaleOneAndAHalf) {
    for (int left = 0; left < 4; ++left) {
        Port port({.right = 16, .bottom = 12}, 1.5, 0xffffff);
        port.frameRect({.left = left, .top = 0, .right = left + 10, .bottom = 12});
        const std::string row = picture(port)[9];
        const std::size_t begin = row.find('#');
        const std::size_t end = row.find_last_of('#');
        EXPECT_EQ(begin, static_cast<std::size_t>(left * 3 + 1) / 2) << "half a pixel rounds up";
        EXPECT_EQ(end - begin + 1, 15u);
        EXPECT_EQ(row.substr(begin, 3), "##.");
        EXPECT_EQ(row.substr(end - 2, 3), ".##");
    }
}

TEST(PortScale, OffScreenImagesFitTheirPlaceAtAnyScale) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        for (int left = 0; left < 5; ++left) {
            const PixelRect area{.left = left + 1, .top = left, .right = left + 9, .bottom = left + 7};
            Port direct({.right = 16, .bottom = 16}, scale, 0xffffff);
            direct.frameRect(area);
            Port image(area, scale, 0xffffff);
            image.frameRect(area);
            Port composed({.right = 16, .bottom = 16}, scale, 0xffffff);
            composed.copyFrom(image);
            EXPECT_EQ(picture(composed), picture(direct)) << scale << ' ' << left;
        }
}

TEST(PortScale, CopiesOnlyWithinTheClip) {
    Port image({.right = 4, .bottom = 4}, 1.0, 0x000000);
    Port port({.right = 4, .bottom = 4}, 1.0, 0xffffff);
    port.state().clip = {.left = 2, .top = 1, .right = 10, .bottom = 2};
    port.copyFrom(image);
    EXPECT_EQ(picture(port), (Picture{"....", "..##", "....", "...."}));
    EXPECT_EQ(port.takeDamage(), (PixelRect{.left = 2, .top = 1, .right = 4, .bottom = 2}));
}

TEST(PortScale, AnInvertingLineDrawnTwiceLeavesThePictureAsItWasAtAnyScale) {
    for (const double scale : {1.5, 2.0, 2.75}) {
        Port port({.right = 30, .bottom = 20}, scale, 0xffffff);
        port.state().pen.mode = PenMode::Invert;
        for (int pass = 0; pass < 2; ++pass) {
            port.moveTo({3, 17});
            port.lineTo({26, 2});
        }
        EXPECT_EQ(picture(port), picture(Port({.right = 30, .bottom = 20}, scale, 0xffffff)));
    }
}

} // namespace
} // namespace easel::paint
