// The tool on a drawing in a window: clicking, dragging, undoing, saving, looking around.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <fstream>
#include <thread>
#include <utility>

namespace desktop {
namespace {

using testing::HasSubstr;
using testing::Not;

// The gradient of an element, as a viewer that knows nothing of Easel finds it.
std::string elementWith(const std::string& svg, const std::string& id) {
    const std::size_t at = svg.find("id=\"" + id + "\"");
    return at == std::string::npos ? std::string() : svg.substr(at, svg.find('>', at) - at);
}

TEST_F(DesktopTest, AClickGivesAShapeTheCurrentGradientAndOneUndoTakesItBack) {
    startWithDrawing();
    const std::string before = contents(drawing());
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_THAT(elementWith(saved(), "plain"), HasSubstr("url(#"));
    screen().key("ctrl+z");
    waitForColor(kPlain);
    EXPECT_EQ(saved(), before) << "what is undone leaves no trace in the file";
    screen().key("ctrl+shift+z");
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_THAT(elementWith(saved(), "plain"), HasSubstr("url(#"));
}

TEST_F(DesktopTest, ADragTurnsALinearGradientAlongItsLine) {
    startWithDrawing();
    const Spot top = onScreen(160, 230);
    const Spot bottom = onScreen(160, 350);
    screen().drag({onScreen(160, 240), onScreen(160, 340)});
    // Dark above, light below, and every row of one color.
    ASSERT_TRUE(eventually([&] {
        const Picture shown = screen().picture();
        return (shown.at(top) & 0xff0000) < 0x600000 && (shown.at(bottom) & 0xff0000) > 0xc00000;
    }));
    const Picture shown = screen().picture();
    EXPECT_EQ(shown.at(onScreen(80, 290)), shown.at(onScreen(240, 290)));
}

TEST_F(DesktopTest, ShiftKeepsADragToMultiplesOfFifteenDegrees) {
    startWithDrawing();
    screen().keyDown("Shift_L");
    screen().drag({onScreen(160, 240), onScreen(164, 340)});
    screen().keyUp("Shift_L");
    ASSERT_TRUE(
        eventually([&] { return (screen().picture().at(onScreen(160, 350)) & 0xff0000) > 0xc00000; }));
    const Picture shown = screen().picture();
    EXPECT_EQ(shown.at(onScreen(70, 290)), shown.at(onScreen(250, 290)))
        << "straight down in spite of the slant";
}

TEST_F(DesktopTest, ADragShowsItsLineWhileTheButtonIsHeld) {
    startWithDrawing();
    screen().moveTo(onScreen(160, 110));
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().moveTo(onScreen(100, 250));
    const Picture before = screen().picture();
    screen().press();
    screen().glideTo(onScreen(220, 330));
    EXPECT_TRUE(eventually(
        [&] { return screen().picture().at(onScreen(160, 290)) != before.at(onScreen(160, 290)); }));
    screen().key("Escape");
    screen().release();
    EXPECT_TRUE(eventually([&] {
        return screen().picture().at(onScreen(160, 290)) == before.at(onScreen(160, 290));
    })) << "Escape breaks the drag off";
}

TEST_F(DesktopTest, APressOnARadialGradientMovesItsCentre) {
    startWithDrawing();
    screen().click(onScreen(360, 290));
    EXPECT_TRUE(eventually([&] {
        const std::uint32_t pixel = screen().picture().at(onScreen(362, 294));
        return (pixel & 0xff) > 0xf0 && (pixel >> 8 & 0xff) > 0xf0;
    })) << "white, the color of the centre, is where the mouse was pressed";
}

TEST_F(DesktopTest, AnEmptySpotBeepsAndChangesNothing) {
    startWithDrawing();
    const int bells = screen().bells();
    screen().click(onScreen(300, 200));
    EXPECT_TRUE(eventually([&] { return screen().bells() == bells + 1; }));
    screen().key("ctrl+s");
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
}

TEST_F(DesktopTest, TheCursorChangesWithTheOptionKey) {
    startWithDrawing();
    screen().moveTo(onScreen(300, 200));
    screen().moveTo(onScreen(302, 202));
    std::this_thread::sleep_for(200ms);
    const unsigned long plain = screen().cursorSerial();
    screen().keyDown("Control_L");
    EXPECT_TRUE(eventually([&] { return screen().cursorSerial() != plain; }));
    const unsigned long option = screen().cursorSerial();
    screen().keyUp("Control_L");
    EXPECT_TRUE(eventually([&] { return screen().cursorSerial() != option; }));
}

TEST_F(DesktopTest, CtrlWheelZoomsAboutThePointer) {
    startWithDrawing();
    const Area before = waitForColor(kMarker);
    const Spot pointer = before.middle();
    screen().moveTo(pointer);
    screen().keyDown("Control_L");
    screen().press(Button::WheelUp);
    screen().release(Button::WheelUp);
    screen().keyUp("Control_L");
    Area after = before;
    EXPECT_TRUE(eventually([&] { return (after = waitForColor(kMarker)).width() > before.width() + 5; }));
    EXPECT_NEAR(after.middle().x, pointer.x, 2);
    EXPECT_NEAR(after.middle().y, pointer.y, 2);
}

TEST_F(DesktopTest, SpaceAndDragPansAndDraggingPastTheEdgeScrolls) {
    startWithDrawing();
    screen().click(onScreen(300, 200));
    for (int i = 0; i < 4; ++i)
        screen().key("ctrl+equal");
    Area before{};
    EXPECT_TRUE(eventually([&] {
        const Area last = std::exchange(before, waitForColor(kPlain));
        return before == last && before.width() > 300;
    })) << "larger, and no longer growing";
    screen().keyDown("space");
    screen().drag({before.middle(), before.middle() + Spot{-60, -40}});
    screen().keyUp("space");
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).right < before.right - 40; }));

    const Window window = drawingWindow();
    const Area marked = waitForColor(kPlain);
    screen().moveTo({window.content.left + 200, window.content.bottom - 120});
    screen().press();
    screen().glideTo({window.content.left + 200, window.content.bottom + 20});
    EXPECT_TRUE(eventually([&] {
        const auto now = screen().picture().find(kPlain);
        return !now || now->bottom < marked.bottom - 20;
    })) << "the mouse rests past the edge";
    screen().release();
}

TEST_F(DesktopTest, AMouseHeldStillCostsNoProcessorTime) {
    startWithDrawing();
    screen().moveTo(onScreen(100, 250));
    screen().press();
    screen().glideTo(onScreen(160, 290));
    std::this_thread::sleep_for(300ms);
    const auto before = program().processorTime();
    std::this_thread::sleep_for(1s);
    EXPECT_LE((program().processorTime() - before).count(), 50) << "milliseconds in a second";
    screen().release();
}

TEST_F(DesktopTest, ClosingInMidDragEndsItCleanlyAndChangesNothing) {
    startWithDrawing();
    screen().moveTo(onScreen(100, 250));
    screen().press();
    screen().glideTo(onScreen(200, 330));
    screen().close(drawingWindow());
    EXPECT_EQ(program().wait(10s), 0) << "without a question about changes, for there are none";
}

TEST_F(DesktopTest, UnsavedChangesAreAskedAbout) {
    startWithDrawing();
    const std::string before = contents(drawing());
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().key("ctrl+w");
    waitForDialog("Easel");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_TRUE(hasWindow("drawing.svg"));
    screen().key("ctrl+w");
    waitForDialog("Easel");
    screen().key("Return");
    EXPECT_EQ(program().wait(10s), 0);
    EXPECT_NE(contents(drawing()), before) << "Return saves";
}

TEST_F(DesktopTest, TheSelectToolSelectsAndDeletes) {
    startWithDrawing();
    screen().key("v");
    screen().click(onScreen(160, 110));
    screen().keyDown("Shift_L");
    screen().click(onScreen(540, 60));
    screen().keyUp("Shift_L");
    screen().key("Delete");
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_TRUE(colorVanishes(kMarker));
    EXPECT_THAT(saved(), Not(HasSubstr("id=\"plain\"")));
    screen().key("ctrl+z");
    waitForColor(kPlain);
    waitForColor(kMarker);
}

TEST_F(DesktopTest, IsSharpOnAScreenWithAScaleFactor) {
    std::ofstream(drawing()) << R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="200" height="100">
  <rect x="20" y="20" width="100" height="50" fill="#12c84a"/></svg>)svg";
    for (const auto& [factor, width] : {std::pair{"1", 100}, {"1.5", 150}, {"2", 200}}) {
        start({drawing().string()}, {{"QT_SCALE_FACTOR", factor}});
        waitForColor(kPlain);
        // It was fitted to the window.
        screen().key("ctrl+1");
        EXPECT_TRUE(eventually([&, width = width] { return waitForColor(kPlain).width() == width; }))
            << factor;
        const Area area = waitForColor(kPlain);
        EXPECT_EQ(screen().picture().at({area.left - 1, area.middle().y}), 0xffffffU)
            << factor << ": no blurred edge";
        EXPECT_EQ(quit(), 0);
    }
}

} // namespace
} // namespace desktop
