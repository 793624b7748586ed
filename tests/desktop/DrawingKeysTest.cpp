// The shapes of a drawing reached and filled with the keyboard alone.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {
namespace {

using testing::HasSubstr;

class DrawingKeysTest : public DesktopTest {
  protected:
    void press(const std::vector<std::string>& keys) {
        for (const std::string& key : keys)
            screen().key(key);
    }
};

TEST_F(DrawingKeysTest, TabSelectsOneShapeAfterTheOtherAndReturnGivesItTheCurrentGradient) {
    startWithDrawing();
    press({"g", "Tab", "Tab", "shift+Tab", "Return"});
    EXPECT_TRUE(colorVanishes(kPlain)) << "the first shape";
    EXPECT_TRUE(screen().picture().find(kMarker)) << "not the second one";
    const std::string filled = saved();
    // Another click would be none.
    screen().key("Return");
    screen().key("ctrl+z");
    EXPECT_NE(saved(), filled);
    EXPECT_THAT(contents(drawing()), HasSubstr("fill=\"#12c84a\""));
}

TEST_F(DrawingKeysTest, TheSelectedShapesGradientIsTurnedEditedAndMoved) {
    startWithDrawing();
    press({"g", "Tab", "Tab", "Tab", "Left", "Left", "Right", "shift+Up", "shift+Up", "shift+Left"});
    EXPECT_THAT(saved(), HasSubstr("1 45 "));
    screen().key("ctrl+Return");
    const Window editor = waitForDialog("Gradient of \u201cgrad\u201d");
    closeEditorWith("Escape");
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    const std::string turned = contents(drawing());
    press({"Tab", "Right", "shift+Down"});
    EXPECT_NE(saved(), turned);
    // One and ten units from the middle, in parts of 240 and 140.
    EXPECT_THAT(contents(drawing()), HasSubstr("2 0 0.5041666666666667 0.5714285714285714"));
}

TEST_F(DrawingKeysTest, APressGoesToAPlaceWhereTheShapeIsNotCovered) {
    std::ofstream(drawing()) << R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="600" height="400">
  <rect id="plain" x="60" y="40" width="200" height="140" fill="#12c84a"/>
  <rect id="marker" x="100" y="60" width="150" height="100" fill="#c832fa"/>
</svg>
)svg";
    startWithDrawing();
    press({"g", "Tab", "Return"});
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_TRUE(screen().picture().find(kMarker));
}

} // namespace
} // namespace desktop
