// How the host interface reads the mouse and shows the feedback of a drag.
#include "host/Mouse.h"
#include "easel/runtime/DrawingWindow.h"
#include "host/Drawing.h"
#include "host/Windows.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <optional>

namespace {

namespace drawing = easel::drawing;
namespace runtime = easel::runtime;

// Has the mouse where it is told to be, one place after the other.
class DraggingUser : public tests::IdleUser {
  public:
    runtime::MouseState mouse() override { return now; }
    runtime::MouseState waitWhileDown() override {
        if (!next.empty()) {
            now = next.front();
            next.pop_front();
        }
        return now;
    }
    runtime::MouseState waitForMove(drawing::Point from) override {
        askedFrom = from;
        return waitWhileDown();
    }
    bool dragBegins(drawing::Point from, double distance) override {
        askedFrom = from;
        askedDistance = distance;
        return true;
    }
    void scrollTowardsMouse(runtime::DrawingWindow&) override { ++scrolls; }
    void present(runtime::DrawingWindow& window) override { shown.push_back(window.feedback().size()); }
    void setCursor(runtime::DrawingWindow&, long id) override { cursor = id; }

    runtime::MouseState now;
    std::deque<runtime::MouseState> next;
    std::optional<drawing::Point> askedFrom;
    double askedDistance = 0;
    int scrolls = 0;
    std::vector<std::size_t> shown;
    long cursor = 0;
};

class MouseTest : public tests::HostTest {
  protected:
    MouseTest() { window.activate(); }

    DraggingUser user;
    runtime::UserScope inFront{process_, user};
    runtime::DrawingWindow window{drawing::Drawing::create(100, 50), process_};
};

TEST_F(MouseTest, PointsArePassedHorizontalCoordinateForHorizontal) {
    user.next = {{{30, 40}, true}};
    const TPoint<double> point = PolyNewMouse({10, 20});
    EXPECT_EQ(user.askedFrom, (drawing::Point{10, 20}));
    EXPECT_EQ(point.h, 30);
    EXPECT_EQ(point.v, 40);
}

TEST_F(MouseTest, IsSnappedAsTheSwitchesSay) {
    user.now = {{34, 47}, true};
    EXPECT_EQ(PolyNewMouse({0, 0}), TPoint<double>(34, 47));
    SetGridSnap(true);
    EXPECT_TRUE(GetGridSnap());
    EXPECT_FALSE(GetObjectSnap());
    EXPECT_EQ(PolyNewMouse({0, 0}), TPoint<double>(30, 50));
    SetGridSnap(false);
    EXPECT_EQ(PolyNewMouse({0, 0}), TPoint<double>(34, 47));
}

TEST_F(MouseTest, InADialogIsInWholePixelsWithinSixteenBits) {
    user.now = {{12.9, -3.1}, true};
    TPoint<short> point;
    QD::GetMouse(point);
    EXPECT_EQ(point, TPoint<short>(12, -4));
    user.now = {{1e9, -1e9}, true};
    WaitMove({0, 0}, point, 1);
    EXPECT_EQ(point, TPoint<short>(32767, -32768));
}

TEST_F(MouseTest, BecomesADragAtThreePixelsWithTheGivenCursor) {
    EXPECT_TRUE(BreakHysteresis({7, 8}, 606));
    EXPECT_EQ(user.askedFrom, (drawing::Point{7, 8}));
    EXPECT_EQ(user.askedDistance, 3);
    EXPECT_EQ(user.cursor, 606);
}

TEST_F(MouseTest, ScrollsOnceOrUntilTheMouseIsBackInTheWindow) {
    user.now = {{120, 20}, true};
    window.ref().ScrollWDiag(false);
    EXPECT_EQ(user.scrolls, 1);
    user.next = {{{130, 20}, true}, {{140, 20}, true}, {{90, 20}, true}};
    window.ref().ScrollWDiag(true);
    EXPECT_EQ(user.scrolls, 4);
    user.next = {{{130, 20}, true}, {{130, 20}, false}};
    window.ref().ScrollWDiag(true);
    EXPECT_EQ(user.scrolls, 6);
}

TEST_F(MouseTest, FeedbackIsShownRoundByRoundAndTakenAwayAtTheEnd) {
    {
        CSyncronizedBuffer buffer(ActiveDrawingWindow(), true);
        for (int round = 1; round <= 2; ++round) {
            buffer.RefreshAndBeginDrawing();
            for (int line = 0; line < round; ++line)
                DrawConstructionLine(buffer.GetGEnv(), {1, 2}, {3, 4});
            buffer.EndDrawingAndUpdateScreen();
        }
        ASSERT_EQ(window.feedback().size(), 2u);
        EXPECT_EQ(window.feedback()[0].from, (drawing::Point{1, 2}));
        EXPECT_EQ(window.feedback()[0].to, (drawing::Point{3, 4}));
    }
    EXPECT_THAT(user.shown, testing::ElementsAre(1u, 2u, 0u));
}

TEST_F(MouseTest, FeedbackWithoutAWindowShowsNothing) {
    process_.setActiveWindow(nullptr);
    EXPECT_EQ(ActiveDrawingWindow(), nullptr);
    {
        CSyncronizedBuffer buffer(nullptr, true);
        buffer.RefreshAndBeginDrawing();
        DrawConstructionLine(buffer.GetGEnv(), {1, 2}, {3, 4});
        buffer.EndDrawingAndUpdateScreen();
    }
    EXPECT_TRUE(user.shown.empty());
}

TEST_F(MouseTest, FixedPointNumbersAreSixteenBitsEachSide) {
    EXPECT_EQ(Fix2X(768), 0.01171875);
    EXPECT_EQ(Long2Fix(90), 5898240);
    EXPECT_EQ(Long2Fix(360), 23592960);
    EXPECT_EQ(Fix2X(Long2Fix(-7)), -7);
    EXPECT_EQ(Long2Fix(40000), 0x7fffffff);
}

} // namespace
