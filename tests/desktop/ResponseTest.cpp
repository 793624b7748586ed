// What is heard and what is repainted when the user acts, by the program's own journal of times.
#include "tests/desktop/DesktopTest.h"

#include <fstream>
#include <sstream>

namespace desktop {
namespace {

class ResponseTest : public DesktopTest {
  protected:
    void startWithJournal() { startWithDrawing({{"EASEL_TIMES", journal()}}); }

    // How many pixels were painted after the last input of this kind; 0 until there were any.
    long long paintedAfter(const std::string& input) const {
        std::ifstream file(journal());
        std::string line;
        long long pixels = 0;
        while (std::getline(file, line)) {
            std::istringstream words(line);
            long long time = 0;
            long long value = 0;
            std::string what;
            words >> time >> what >> value;
            if (what == input)
                pixels = 0;
            else if (what == "painted")
                pixels += value;
        }
        return pixels;
    }

    long long pixelsPaintedAfter(const std::string& input) {
        EXPECT_TRUE(eventually([&] { return paintedAfter(input) > 0; }));
        return paintedAfter(input);
    }

  private:
    std::string journal() const { return folder() / "times"; }
};

TEST_F(ResponseTest, AClickAndItsUndoRepaintTheObjectAndNotTheWindow) {
    startWithJournal();
    const Area object = waitForColor(kPlain);
    const long long most = 2LL * object.width() * object.height();
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_LT(pixelsPaintedAfter("press"), most);
    screen().key("ctrl+z");
    waitForColor(kPlain);
    EXPECT_LT(pixelsPaintedAfter("key"), most);
}

TEST_F(ResponseTest, AFrameOfADragRepaintsWhereItsLineWasAndIs) {
    startWithJournal();
    screen().moveTo(onScreen(100, 250));
    screen().press();
    screen().glideTo(onScreen(120, 262));
    screen().moveTo(onScreen(120, 263));
    EXPECT_LT(pixelsPaintedAfter("move"), 10000)
        << "of which the pointer's place in the status line has a part";
    screen().release();
}

TEST_F(ResponseTest, APressSoonAfterAClickAtTheSamePlaceIsHeard) {
    startWithDrawing();
    const Spot spot = onScreen(160, 110);
    screen().click(spot);
    screen().drag({spot, spot + Spot{0, 40}});
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().key("ctrl+z");
    EXPECT_FALSE(eventually([&] { return screen().picture().find(kPlain).has_value(); }, 500ms))
        << "only the drag is undone";
    screen().key("ctrl+z");
    waitForColor(kPlain);
}

} // namespace
} // namespace desktop
