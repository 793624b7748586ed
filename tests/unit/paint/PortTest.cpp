// The pen's pixels at scale 1, counted by hand.
#include "tests/unit/paint/PortPicture.h"

#include <gtest/gtest.h>

namespace easel::paint {
namespace {

Port whitePort(int width, int height) {
    return Port({.right = width, .bottom = height}, 1.0, 0xffffff);
}

TEST(Port, PaintsThePixelsFromLeftAndTopUpToButWithoutRightAndBottom) {
    Port port = whitePort(6, 4);
    port.paintRect({.left = 2, .top = 1, .right = 5, .bottom = 3});
    EXPECT_EQ(picture(port), (Picture{"......", //
                                      "..###.", //
                                      "..###.", //
                                      "......"}));
}

TEST(Port, FramesInsideTheRectangle) {
    Port port = whitePort(7, 5);
    port.frameRect({.left = 1, .top = 0, .right = 6, .bottom = 5});
    EXPECT_EQ(picture(port), (Picture{".#####.", //
                                      ".#...#.", //
                                      ".#...#.", //
                                      ".#...#.", //
                                      ".#####."}));
}

TEST(Port, FramesWithAWiderPenGrowInwards) {
    Port port = whitePort(8, 6);
    port.state().pen.size = {2, 1};
    port.frameRect({.right = 8, .bottom = 6});
    EXPECT_EQ(picture(port), (Picture{"########", //
                                      "##....##", //
                                      "##....##", //
                                      "##....##", //
                                      "##....##", //
                                      "########"}));
}

TEST(Port, FillsARectangleTooSmallForItsFrame) {
    Port port = whitePort(5, 4);
    port.state().pen.size = {2, 2};
    port.frameRect({.left = 1, .top = 0, .right = 4, .bottom = 3});
    EXPECT_EQ(picture(port), (Picture{".###.", //
                                      ".###.", //
                                      ".###.", //
                                      "....."}));
}

TEST(Port, DrawsNothingForAnEmptyRectangle) {
    Port port = whitePort(4, 2);
    port.paintRect({.left = 3, .top = 1, .right = 1, .bottom = 1});
    port.frameRect({.left = 3, .top = 0, .right = 1, .bottom = 2});
    EXPECT_EQ(picture(port), (Picture{"....", "...."}));
}

TEST(Port, ALineCoversThePixelsRightOfAndBelowBothItsPoints) {
    Port port = whitePort(7, 3);
    port.moveTo({1, 1});
    port.lineTo({5, 1});
    EXPECT_EQ(picture(port), (Picture{".......", //
                                      ".#####.", //
                                      "......."}));
}

TEST(Port, AZeroLengthLineIsOnePenNib) {
    Port port = whitePort(4, 4);
    port.state().pen.size = {2, 2};
    port.moveTo({1, 1});
    port.lineTo({1, 1});
    EXPECT_EQ(picture(port), (Picture{"....", //
                                      ".##.", //
                                      ".##.", //
                                      "...."}));
}

TEST(Port, AWidePenHangsRightAndBelow) {
    Port port = whitePort(6, 6);
    port.state().pen.size = {2, 2};
    port.moveTo({0, 0});
    port.lineTo({3, 3});
    EXPECT_EQ(picture(port), (Picture{"##....", //
                                      "###...", //
                                      ".###..", //
                                      "..###.", //
                                      "...##.", //
                                      "......"}));
}

TEST(Port, AShallowLineStepsHalfwayBetweenItsRows) {
    Port port = whitePort(7, 3);
    port.moveTo({0, 0});
    port.lineTo({6, 2});
    EXPECT_EQ(picture(port), (Picture{"##.....", //
                                      "..###..", //
                                      ".....##"}));
}

TEST(Port, ALineIsTheSameWhicheverWayItIsDrawn) {
    for (int h = -9; h <= 9; ++h)
        for (int v = -9; v <= 9; ++v) {
            Port there = whitePort(21, 21);
            there.moveTo({10, 10});
            there.lineTo({10 + h, 10 + v});
            Port back = whitePort(21, 21);
            back.moveTo({10 + h, 10 + v});
            back.lineTo({10, 10});
            EXPECT_EQ(picture(there), picture(back)) << h << ' ' << v;
        }
}

TEST(Port, ALineLeavesThePenAtItsEnd) {
    Port port = whitePort(4, 4);
    port.moveTo({1, 1});
    port.lineTo({3, 2});
    EXPECT_EQ(port.state().pen.location, (PixelPoint{3, 2}));
}

TEST(Port, AnInvertingLineDrawnTwiceLeavesThePictureAsItWas) {
    Port port = whitePort(30, 30);
    port.paintRect({.left = 5, .top = 5, .right = 12, .bottom = 20});
    const Picture before = picture(port);
    port.state().pen.mode = PenMode::Invert;
    for (const PixelPoint nib : {PixelPoint{1, 1}, PixelPoint{3, 2}}) {
        port.state().pen.size = nib;
        for (int pass = 0; pass < 2; ++pass) {
            port.moveTo({2, 3});
            port.lineTo({27, 11});
            EXPECT_EQ(picture(port) == before, pass == 1);
        }
    }
}

TEST(Port, AnInvertingPenTurnsBlackWhiteAndWhiteBlackWhateverTheForeground) {
    Port port = whitePort(4, 1);
    port.paintRect({.right = 2, .bottom = 1});
    port.state().foreground = {65535, 0, 0};
    port.state().pen.mode = PenMode::Invert;
    port.moveTo({1, 0});
    port.lineTo({2, 0});
    EXPECT_EQ(picture(port), (Picture{"#.#."}));
}

TEST(Port, KnowsWhichPixelsAreInverted) {
    Port port = whitePort(4, 2);
    EXPECT_TRUE(port.inverted().empty());
    port.state().pen.mode = PenMode::Invert;
    port.moveTo({1, 1});
    port.lineTo({2, 1});
    EXPECT_EQ(port.inverted(), (std::vector<bool>{false, false, false, false, false, true, true, false}));
    port.moveTo({2, 1});
    port.lineTo({3, 1});
    EXPECT_EQ(port.inverted(), (std::vector<bool>{false, false, false, false, false, true, false, true}));
}

PortPolygon recordTriangle(Port& port, PixelPoint apex, int size) {
    port.openPolygon();
    port.moveTo(apex);
    port.lineTo({apex.h + size, apex.v + size});
    port.lineTo({apex.h - size, apex.v + size});
    port.lineTo(apex);
    return port.closePolygon();
}

TEST(Port, RecordsLinesWithoutDrawingThem) {
    Port port = whitePort(11, 6);
    const PortPolygon triangle = recordTriangle(port, {5, 0}, 5);
    EXPECT_EQ(triangle, (PortPolygon{{5, 0}, {10, 5}, {0, 5}, {5, 0}}));
    EXPECT_EQ(picture(port), Picture(6, "..........."));
}

TEST(Port, APaintedPolygonLeavesOutItsRightAndBottomEdges) {
    Port port = whitePort(11, 6);
    port.paintPolygon(recordTriangle(port, {5, 0}, 5));
    EXPECT_EQ(picture(port), (Picture{"...........", //
                                      "....##.....", //
                                      "...####....", //
                                      "..######...", //
                                      ".########..", //
                                      "..........."}));
}

TEST(Port, FramesAPolygonAlongItsRecordedLines) {
    Port port = whitePort(11, 6);
    port.framePolygon(recordTriangle(port, {5, 0}, 5));
    EXPECT_EQ(picture(port), (Picture{".....#.....", //
                                      "....#.#....", //
                                      "...#...#...", //
                                      "..#.....#..", //
                                      ".#.......#.", //
                                      "###########"}));
}

TEST(Port, PaintsARectangularPolygonLikeTheRectangle) {
    Port port = whitePort(6, 4);
    port.paintPolygon({{1, 1}, {4, 1}, {4, 3}, {1, 3}});
    EXPECT_EQ(picture(port), (Picture{"......", //
                                      ".###..", //
                                      ".###..", //
                                      "......"}));
}

TEST(Port, ErasesToTheBackgroundInAnyPenMode) {
    Port port = whitePort(4, 1);
    port.paintRect({.right = 4, .bottom = 1});
    port.state().pen.mode = PenMode::Invert;
    port.eraseRect({.left = 1, .top = 0, .right = 3, .bottom = 1});
    EXPECT_EQ(picture(port), (Picture{"#..#"}));
}

TEST(Port, DrawsNothingOutsideItsClip) {
    Port port = whitePort(6, 4);
    port.state().clip = {.left = 2, .top = 1, .right = 4, .bottom = 3};
    port.paintRect({.right = 6, .bottom = 4});
    EXPECT_EQ(picture(port), (Picture{"......", //
                                      "..##..", //
                                      "..##..", //
                                      "......"}));
    port.state().clip = {.left = -100, .top = -100, .right = 100, .bottom = 100};
    port.moveTo({-32768, 0});
    port.lineTo({32767, 0});
    EXPECT_EQ(picture(port)[0], "######");
}

TEST(Port, APatternPaintsItsSetBitsInTheForegroundAndTheRestInTheBackground) {
    Port port = whitePort(4, 2);
    port.paintRect({.right = 4, .bottom = 2});
    port.state().pen.pattern = {0xaa, 0x55, 0xaa, 0x55, 0xaa, 0x55, 0xaa, 0x55};
    port.paintRect({.right = 4, .bottom = 2});
    EXPECT_EQ(picture(port), (Picture{"#.#.", ".#.#"}));
}

TEST(Port, RoundsSixteenBitChannelsToTheNearestLevel) {
    Port port = whitePort(1, 1);
    // 32896 is 128 times 257, the middle of level 128; 128 more is still nearer to 128 than to 129, 129 more
    // is not.
    port.state().foreground = {32896, 32896 + 128, 32896 + 129};
    port.paintRect({.right = 1, .bottom = 1});
    EXPECT_EQ(port.pixels()[0], 0xff808081u);
}

TEST(Port, TellsOnceWhereItWasDrawn) {
    Port port = whitePort(10, 10);
    EXPECT_TRUE(port.takeDamage().empty());
    port.moveTo({2, 3});
    port.lineTo({5, 3});
    port.paintRect({.left = 1, .top = 7, .right = 2, .bottom = 20});
    EXPECT_EQ(port.takeDamage(), (PixelRect{.left = 1, .top = 3, .right = 6, .bottom = 10}));
    EXPECT_TRUE(port.takeDamage().empty());
}

} // namespace
} // namespace easel::paint
