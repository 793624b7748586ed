// The list of keys and gestures.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <set>
#include <utility>

namespace desktop {
namespace {

using testing::Contains;

class HelpTest : public DesktopTest {
  protected:
    // The rows of the list that has the keyboard, through the clipboard; the last one is met twice.
    static std::set<std::string> rows() {
        std::set<std::string> found;
        std::string row;
        screen().key("Home");
        while (eventually(
            [&] {
                screen().key("ctrl+c");
                const std::string copied = screen().clipboard();
                return copied != std::exchange(row, copied);
            },
            1s)) {
            found.insert(row);
            screen().key("Down");
        }
        return found;
    }
};

TEST_F(HelpTest, EveryKeyAndGestureIsListed) {
    startWithDrawing();
    screen().key("F1");
    waitForDialog("Shortcuts");
    const std::set<std::string> listed = rows();
    for (const char* what : {"Gradient Tool", "Turn a linear gradient", "Break off a drag", "Select several",
                             "Copy the gradient of a shape", "Move the view", "Open drawings", "Undo",
                             "Save As\u2026", "Print\u2026", "Reverse", "Plain Color\u2026", "Apply Template",
                             "Stroke Instead of Fill", "Zoom In", "Snap to Grid", "Shortcuts", "Select"})
        EXPECT_THAT(listed, Contains(what));
    for (const char* inTheEditor : {"Add a color stop", "Remove a color stop", "Set the direction",
                                    "Find a template", "Take back what is being dragged"})
        EXPECT_THAT(listed, Contains(inTheEditor));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Shortcuts"));
    EXPECT_EQ(quit(), 0);
}

} // namespace
} // namespace desktop
