// Windows and dialogs on the smallest screen that Easel is made for.
#include "tests/desktop/DesktopTest.h"

#include <array>

namespace desktop {
namespace {

constexpr Area kSmall{0, 0, 800, 600};

// A dialog, and how a user gets there from a selected shape with a gradient.
struct Way {
    const char* keys;
    const char* title;
    const char* titleInGerman;
};
constexpr std::array kWays{
    Way{"ctrl+g", "Current Gradient", "Verlauf (aktuell)"},
    Way{"ctrl+shift+a", "Angle", "Winkel"},
    Way{"ctrl+shift+o", "Opacity", "Deckkraft"},
    Way{"ctrl+shift+k", "Plain color", "Einfarbig"},
    Way{"F1", "Shortcuts", "Tastenk\u00fcrzel"},
    Way{"ctrl+o", "Open", "\u00d6ffnen"},
    Way{"ctrl+shift+s", "Save As", "Speichern unter"},
};

bool isInside(const Window& window) {
    const Area& content = window.content;
    return content.left >= kSmall.left && content.top >= kSmall.top && content.right <= kSmall.right &&
           content.bottom <= kSmall.bottom;
}

class SmallScreenTest : public DesktopTest {
  protected:
    static void SetUpTestSuite() { startScreen("800x600"); }
    static void TearDownTestSuite() { endScreen(); }

    void expectEveryDialogInside(const char* Way::*title) {
        getsKeyboard("drawing.svg");
        screen().key("ctrl+a");
        for (const Way& way : kWays) {
            getsKeyboard("drawing.svg");
            screen().key(way.keys);
            waitForDialog(way.*title);
            EXPECT_TRUE(eventually([&] { return isInside(waitForWindow(way.*title)); })) << way.title;
            screen().key("Escape");
            EXPECT_TRUE(vanishes(way.*title)) << way.title;
        }
    }
};

TEST_F(SmallScreenTest, TheFirstWindowAndTheNextLieInsideTheScreen) {
    startWithDrawing();
    EXPECT_TRUE(isInside(drawingWindow()));
    screen().key("ctrl+n");
    EXPECT_TRUE(isInside(waitForDialog("Untitled")));
}

TEST_F(SmallScreenTest, EveryDialogLiesInsideTheScreen) {
    startWithDrawing();
    expectEveryDialogInside(&Way::title);
}

TEST_F(SmallScreenTest, WindowAndDialogsLieInsideTheScreenInLongerWords) {
    startWithDrawing({{"LC_ALL", "de_DE.UTF-8"}, {"LANGUAGE", ""}});
    EXPECT_TRUE(isInside(drawingWindow()));
    expectEveryDialogInside(&Way::titleInGerman);
}

TEST_F(SmallScreenTest, ADialogThatTheScreenHasNoRoomForScrolls) {
    startWithDrawing({{"QT_SCALE_FACTOR", "2"}});
    EXPECT_TRUE(isInside(drawingWindow()));
    screen().key("ctrl+g");
    const Window editor = waitForDialog("Current Gradient");
    EXPECT_TRUE(isInside(editor));
    // Two pixels of the screen are one of the dialog's: the ramp lies below what is in sight.
    const Spot inSight{editor.content.middle().x, editor.content.bottom - 60};
    const std::uint32_t before = screen().picture().at(inSight);
    for (int turn = 0; turn < 30; ++turn)
        screen().click(editor.content.middle(), Button::WheelDown);
    EXPECT_TRUE(eventually([&] { return screen().picture().at(inSight) != before; }));
}

} // namespace
} // namespace desktop
