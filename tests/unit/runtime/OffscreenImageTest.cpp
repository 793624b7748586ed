// An image that is drawn into beside the screen: which port is current meanwhile, and what is copied.
#include "easel/runtime/OffscreenImage.h"

#include <gtest/gtest.h>

#include <optional>

namespace easel::runtime {
namespace {

constexpr std::uint32_t kPaper = 0xf2f2f2;

class OffscreenImageTest : public testing::Test {
  protected:
    OffscreenImageTest() {
        ports_.add(screen_);
        ports_.makeCurrent(&screen_);
        image_.emplace(paint::PixelRect{.left = 2, .top = 3, .right = 6, .bottom = 8}, ports_);
    }
    std::uint32_t screenPixel(int x, int y) const {
        return screen_.pixels()[y * screen_.imageWidth() + x] & 0xffffff;
    }

    paint::Port screen_{{.right = 10, .bottom = 10}, 2.0, kPaper};
    Ports ports_;
    std::optional<OffscreenImage> image_;
};

TEST_F(OffscreenImageTest, IsTheCurrentPortOnlyWhileItIsDrawnInto) {
    EXPECT_EQ(ports_.current(), &screen_);
    image_->beginDrawing();
    EXPECT_NE(ports_.current(), &screen_);
    EXPECT_EQ(ports_.target().bounds(), (paint::PixelRect{.left = 2, .top = 3, .right = 6, .bottom = 8}));
    image_->endDrawing();
    EXPECT_EQ(ports_.current(), &screen_);
}

TEST_F(OffscreenImageTest, LeavesThePortThatWasThereWhenItsDrawingIsCutOff) {
    image_->beginDrawing();
    image_.reset();
    EXPECT_EQ(ports_.current(), &screen_);
}

TEST_F(OffscreenImageTest, GoesWithoutAnotherPortBecomingCurrent) {
    ports_.makeCurrent(nullptr);
    image_.reset();
    EXPECT_EQ(ports_.current(), nullptr);
}

TEST_F(OffscreenImageTest, IsCopiedToItsPlaceAsSharpAsTheScreen) {
    image_->beginDrawing();
    ports_.target().state().foreground = {};
    ports_.target().paintRect({.left = 2, .top = 3, .right = 4, .bottom = 4});
    image_->endDrawing();
    EXPECT_EQ(screenPixel(4, 6), kPaper);
    image_->copyTo(screen_);
    EXPECT_EQ(screenPixel(4, 6), 0U);
    EXPECT_EQ(screenPixel(7, 7), 0U);
    EXPECT_EQ(screenPixel(8, 7), kPaper) << "it begins with the background of the screen";
    EXPECT_EQ(screenPixel(3, 6), kPaper);
    EXPECT_EQ(screenPixel(4, 5), kPaper);
}

} // namespace
} // namespace easel::runtime
