// The port of a drawing window, which the plug-in makes current when it enters a callback, and which window
// is in front.
#include "easel/paint/Port.h"
#include "easel/runtime/DrawingWindow.h"
#include "host/Drawing.h"
#include "host/Windows.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace {

namespace drawing = easel::drawing;
namespace runtime = easel::runtime;

class WindowPortTest : public tests::HostTest {
  protected:
    std::unique_ptr<runtime::DrawingWindow> newWindow() {
        return std::make_unique<runtime::DrawingWindow>(drawing::Drawing::create(100, 50), process_);
    }

    std::unique_ptr<runtime::DrawingWindow> window_ = newWindow();
};

TEST_F(WindowPortTest, IsTheCurrentOneOnceThePluginHasSetIt) {
    EXPECT_EQ(process_.ports().current(), nullptr) << "a new window does not push itself forward";
    QD::SetPort(window_->ref().GetMacPort());
    EXPECT_EQ(process_.ports().current(), &window_->port());
    const auto other = newWindow();
    EXPECT_EQ(process_.ports().current(), &window_->port());
    QD::SetPort(other->ref().GetMacPort());
    EXPECT_EQ(process_.ports().current(), &other->port());
}

TEST_F(WindowPortTest, KeepsItsPenWhileAnotherOneIsCurrent) {
    const RGBColor red{0xffff, 0, 0};
    const RGBColor blue{0, 0, 0xffff};
    const auto other = newWindow();
    QD::SetPort(window_->ref().GetMacPort());
    QD::RGBForeColor(&red);
    QD::SetPort(other->ref().GetMacPort());
    QD::RGBForeColor(&blue);
    QD::SetPort(window_->ref().GetMacPort());
    RGBColor now{};
    QD::GetForeColor(&now);
    EXPECT_EQ(now.red, red.red);
    EXPECT_EQ(now.blue, red.blue);
}

TEST_F(WindowPortTest, BeginsWithABlackPenOnWhitePaper) {
    const easel::paint::Port& port = window_->port();
    EXPECT_EQ(port.state().foreground, drawing::Rgb16{});
    EXPECT_EQ(port.state().pen, easel::paint::Pen{});
    EXPECT_EQ(port.state().background, 0xffffffU);
    EXPECT_EQ(port.pixels()[0], 0xffffffffU);
}

TEST_F(WindowPortTest, TakesNoPictureOfItsOwn) {
    EXPECT_EQ(window_->port().imageWidth(), 1) << "nobody sees it, however large the window is";
    EXPECT_EQ(window_->port().imageHeight(), 1);
    window_->paintMarked();
    QD::SetPort(window_->ref().GetMacPort());
    QD::PaintRect({0, 0, 50, 100});
    EXPECT_TRUE(window_->marks().empty());
}

TEST_F(WindowPortTest, GoesWithItsWindow) {
    QD::SetPort(window_->ref().GetMacPort());
    const easel::paint::Port* const gone = &window_->port();
    window_.reset();
    EXPECT_EQ(process_.ports().current(), nullptr);
    EXPECT_FALSE(process_.ports().has(gone)) << "the plug-in may still try to put it back";
}

TEST_F(WindowPortTest, StaysCurrentWhenAnotherWindowGoes) {
    auto other = newWindow();
    QD::SetPort(window_->ref().GetMacPort());
    other.reset();
    EXPECT_EQ(process_.ports().current(), &window_->port());
}

TEST_F(WindowPortTest, TheWindowInFrontIsTheOneLastActivatedUntilItGoes) {
    EXPECT_EQ(ActiveDrawingWindow(), nullptr);
    auto other = newWindow();
    other->activate();
    window_->activate();
    EXPECT_EQ(ActiveDrawingWindow(), &window_->ref());
    other.reset();
    EXPECT_EQ(ActiveDrawingWindow(), &window_->ref());
    window_.reset();
    EXPECT_EQ(ActiveDrawingWindow(), nullptr);
}

// Writes down which areas of which window it is told to repaint.
class RepaintedUser : public tests::IdleUser {
  public:
    void repaint(runtime::DrawingWindow& window, const drawing::Box& area) override {
        windows.push_back(&window);
        areas.push_back(area);
    }

    std::vector<const runtime::DrawingWindow*> windows;
    std::vector<drawing::Box> areas;
};

TEST_F(WindowPortTest, ChangesOfItsDrawingAreToldToTheUserWhoIsThere) {
    drawing::Object box;
    box.outline = drawing::rectanglePath({10, 10, 20, 20});
    window_->drawing().insert(0, sealed(std::move(box)));
    RepaintedUser user;
    {
        const runtime::UserScope there(process_, user);
        window_->paintMarked();
        EXPECT_TRUE(user.areas.empty()) << "painting changes nothing";
        window_->drawing().erase(0);
    }
    ASSERT_FALSE(user.areas.empty());
    EXPECT_THAT(user.windows, testing::Each(window_.get()));
    EXPECT_EQ(user.areas.front().intersection({10, 10, 20, 20}), (drawing::Box{10, 10, 20, 20}));
}

} // namespace
