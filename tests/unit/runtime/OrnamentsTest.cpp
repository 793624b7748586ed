// What the host itself draws in a port: lines between groups, shadows of swatches, and gradients.
#include "easel/drawing/Path.h"
#include "easel/paint/Port.h"
#include "easel/runtime/DialogOrnaments.h"
#include "easel/runtime/GradientFill.h"
#include "easel/runtime/ThemeColor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace easel::runtime {
namespace {

using testing::ElementsAre;

constexpr std::uint32_t kPaper = 0xf2f2f2;
constexpr std::uint32_t kInk = 0x123456;

// The pixels of the port: '#' the ink, '.' the paper.
std::vector<std::string> rowsOf(const paint::Port& port) {
    std::vector<std::string> rows;
    const std::uint32_t* pixel = port.pixels();
    for (int y = 0; y < port.imageHeight(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < port.imageWidth(); ++x, ++pixel)
            rows.back() += *pixel == (0xff000000 | kInk) ? '#' : *pixel == (0xff000000 | kPaper) ? '.' : '?';
    }
    return rows;
}

class OrnamentsTest : public testing::Test {
  protected:
    OrnamentsTest() {
        port_.state().foreground = {1, 2, 3};
        port_.state().pen.size = {3, 3};
        port_.state().pen.mode = paint::PenMode::Invert;
        before_ = port_.state();
    }

    paint::Port port_{{.right = 7, .bottom = 7}, 1.0, kPaper};
    paint::PortState before_;
};

TEST_F(OrnamentsTest, ASeparatorIsALineOfOnePixelAlongTheMiddleOfItsBounds) {
    drawSeparator(port_, {.separator = kInk}, {.left = 1, .top = 1, .right = 6, .bottom = 6});
    EXPECT_THAT(rowsOf(port_),
                ElementsAre(".......", ".......", ".......", ".#####.", ".......", ".......", "......."));
    EXPECT_EQ(port_.state(), before_);
}

TEST_F(OrnamentsTest, AShadowLiesTwoPixelsBelowAndToTheRightOfItsSwatch) {
    drawShadow(port_, {.shadow = kInk}, {.left = 0, .top = 0, .right = 4, .bottom = 4});
    EXPECT_THAT(rowsOf(port_),
                ElementsAre(".......", ".......", "....##.", "....##.", "..####.", "..####.", "......."));
    EXPECT_EQ(port_.state(), before_);
}

TEST_F(OrnamentsTest, ARimGoesAroundTheSwatchWhereTheThemeHasOne) {
    drawShadow(port_, {.shadow = kPaper, .rim = kInk}, {.left = 1, .top = 1, .right = 4, .bottom = 4});
    EXPECT_THAT(rowsOf(port_),
                ElementsAre("#####..", "#...#..", "#...#..", "#...#..", "#####..", ".......", "......."));
    EXPECT_EQ(port_.state(), before_);
}

TEST(ThemeColor, EachLevelIsTheChannelThatIsShownAsThatLevel) {
    EXPECT_EQ(portColorOf(0x123456), (drawing::Rgb16{0x1212, 0x3434, 0x5656}));
    EXPECT_EQ(portColorOf(0xff0001), (drawing::Rgb16{0xffff, 0, 0x0101}));
}

TEST(ThemeColor, WithoutADesktopEverythingIsGray) {
    const DialogTheme theme;
    for (const std::uint32_t color : {theme.background, theme.separator, theme.shadow, theme.erased}) {
        const drawing::Rgb16 shown = portColorOf(color);
        EXPECT_EQ(shown.red, shown.green);
        EXPECT_EQ(shown.green, shown.blue);
    }
}

TEST(GradientFill, GoesAcrossAPortThatBeginsSomewhereOnAScreenOfTwoPixelsForOne) {
    paint::Port port({.left = 10, .top = 30, .right = 20, .bottom = 35}, 2.0, kPaper);
    CGradientData record;
    record.SetStart({10, 0});
    record.SetEnd({20, 0});
    record.ColorList().clear();
    record.ColorList().emplace_back(RGBColor{0, 0, 0}, 0);
    record.ColorList().emplace_back(RGBColor{0xffff, 0xffff, 0xffff}, 1);
    fillWithGradient(port, drawing::rectanglePath({10, 30, 20, 35}), record);
    ASSERT_EQ(port.imageWidth(), 20);
    ASSERT_EQ(port.imageHeight(), 10);
    for (int y = 0; y < port.imageHeight(); ++y)
        for (int x = 0; x < port.imageWidth(); ++x) {
            // The level in the middle of the pixel.
            const double level = 255 * (x + 0.5) / 20;
            EXPECT_NEAR(port.pixels()[y * port.imageWidth() + x] & 0xff, level, 1.5) << x << ", " << y;
        }
}

} // namespace
} // namespace easel::runtime
